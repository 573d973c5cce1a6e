// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Views/Controls/ChartPainter.h"

namespace quillon::testing {

/// Leaves charts blank, so that they can be tested without the module that paints them.
class BlankPainter : public ChartPainter {
  public:
    void paint(QPaintDevice&, const ChartPicture&) override {}
    Library library() const override { return {}; }
};

}  // namespace quillon::testing
