// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointF>

#include <string>

class QPainter;

namespace quillon {

/// A filled circle in the colour of a band.
struct BandDot {
    static constexpr double diameter = 8;

    std::string band;

    void paint(QPainter& painter, QPointF center) const;
};

}  // namespace quillon
