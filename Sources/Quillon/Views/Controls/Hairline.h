// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPaintDevice>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace quillon {

/// The width of a line that is 1 wide, in logical pixels: as many whole pixels of the screen as fit into it,
/// so that all lines are equally thick where a logical pixel is one and a half of them.
inline double hairlineWidth(const QPainter& painter) {
    const double ratio = painter.device()->devicePixelRatioF();
    return std::max(1.0, std::floor(ratio)) / ratio;
}

}  // namespace quillon
