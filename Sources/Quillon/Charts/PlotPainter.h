// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Views/Controls/ChartPainter.h"

#include <QObject>

namespace quillon {

/// Paints charts with QCustomPlot. Where everything lies is given by the geometry: the axes of the plot count
/// in pixels of the chart.
class PlotPainter : public QObject, public ChartPainter {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "quillon.ChartPainter/2")
    Q_INTERFACES(quillon::ChartPainter)

  public:
    void paint(QPaintDevice& device, const ChartPicture& picture) override;
    Library library() const override;
};

}  // namespace quillon
