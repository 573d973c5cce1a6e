// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/Libraries.h"
#include "Quillon/Views/Controls/ChartGeometry.h"

#include <QColor>
#include <QFont>
#include <QtPlugin>

#include <functional>

class QPaintDevice;

namespace quillon {

/// What a chart is painted from.
struct ChartPicture {
    const ChartGeometry& geometry;
    QString labelAxis;
    QString countAxis;
    std::function<QColor(std::size_t entry)> barColor;
    QFont font;
    QColor ground;
    QColor text;      ///< Of the numbers at the bars.
    QColor axisText;  ///< Of the labels and titles along the axes.
    QColor line;      ///< Of the axis on which the bars stand.
    QColor gridLine;
};

/// Paints charts. The library that does it is large and needed by few who start the program, so that it comes
/// as a module, loaded when the first chart is made.
class ChartPainter {
  public:
    ChartPainter() = default;
    ChartPainter(const ChartPainter&) = delete;
    ChartPainter& operator=(const ChartPainter&) = delete;
    virtual ~ChartPainter() = default;

    /// Paints the whole of the chart onto `device`, on which nothing else paints meanwhile.
    virtual void paint(QPaintDevice& device, const ChartPicture& picture) = 0;
    /// What it paints with.
    virtual Library library() const = 0;
};

/// The painter of the module, the same each time; null if there is no such module beside the program.
ChartPainter* chartPainter();

}  // namespace quillon

Q_DECLARE_INTERFACE(quillon::ChartPainter, "quillon.ChartPainter/2")
