// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Charts/PlotPainter.h"

#include <qcustomplot.h>

#include <map>

namespace quillon {

namespace {

/// One chart, made for one painting.
class Plot {
  public:
    explicit Plot(const ChartPicture& chartPicture)
        : picture(chartPicture), geometry(chartPicture.geometry), area(chartPicture.geometry.plot()) {
        plot.setBackground(QBrush(picture.ground));
        QCPAxisRect& rect = *plot.axisRect();
        rect.setAutoMargins(QCP::msNone);
        rect.setMargins(QMargins(area.left(), area.top(), geometry.size().width() - area.right() - 1,
                                 geometry.size().height() - area.bottom() - 1));
        labelAxis = geometry.isSideways() ? plot.yAxis : plot.xAxis;
        countAxis = geometry.isSideways() ? plot.xAxis : plot.yAxis;
        plot.xAxis->setRange(0, area.width());
        plot.yAxis->setRange(0, area.height());
        setUpAxis(*labelAxis, geometry.labelTicks(), picture.labelAxis);
        setUpAxis(*countAxis, geometry.countTicks(), picture.countAxis);
        labelAxis->setBasePen(QPen(picture.line, 1));
        labelAxis->grid()->setVisible(false);
        countAxis->grid()->setPen(QPen(picture.gridLine, 1));
        countAxis->grid()->setZeroLinePen(Qt::NoPen);
        addBars();
        addAnnotations();
    }

    void paint(QPaintDevice& device) {
        QCPPainter painter;
        painter.begin(&device);
        plot.toPainter(&painter, geometry.size().width(), geometry.size().height());
    }

  private:
    /// The plot counts from below.
    double upward(double fromAbove) const { return area.height() - fromAbove; }

    void setUpAxis(QCPAxis& axis, const std::vector<ChartGeometry::Tick>& ticks, const QString& title) {
        const QSharedPointer<QCPAxisTickerText> ticker(new QCPAxisTickerText);
        for (const ChartGeometry::Tick& tick : ticks) {
            ticker->addTick(&axis == plot.yAxis ? upward(tick.at) : tick.at, tick.label);
        }
        axis.setTicker(ticker);
        // A label such as "3e8" is a text and no number to be written in another way.
        axis.setNumberFormat(QStringLiteral("g"));
        axis.setTickPen(Qt::NoPen);
        axis.setTickLength(0);
        axis.setSubTicks(false);
        axis.setBasePen(Qt::NoPen);
        axis.setTickLabelFont(picture.font);
        axis.setTickLabelColor(picture.axisText);
        axis.setTickLabelPadding(5);
        axis.setLabel(title);
        axis.setLabelFont(picture.font);
        axis.setLabelColor(picture.axisText);
        axis.setLabelPadding(2);
    }

    double positionOf(const ChartGeometry::Bar& bar) const {
        const QRectF place(bar.area);
        return geometry.isSideways() ? upward(place.center().y() - area.top())
                                     : place.center().x() - area.left();
    }
    double lengthOf(const ChartGeometry::Bar& bar) const {
        return geometry.isSideways() ? bar.area.width() : bar.area.height();
    }

    /// A plottable has one colour.
    void addBars() {
        std::map<QRgb, QVector<QCPBarsData>> byColor;
        for (const ChartGeometry::Bar& bar : geometry.bars()) {
            byColor[picture.barColor(bar.entry).rgb()].append(QCPBarsData(positionOf(bar), lengthOf(bar)));
        }
        for (const auto& [color, data] : byColor) {
            auto* bars = new QCPBars(labelAxis, countAxis);
            bars->data()->set(data);
            bars->setWidthType(QCPBars::wtAbsolute);
            const QRect& first = geometry.bars().front().area;
            bars->setWidth(geometry.isSideways() ? first.height() : first.width());
            bars->setPen(Qt::NoPen);
            bars->setBrush(QColor::fromRgb(color));
            bars->setAntialiased(false);
        }
    }

    void addAnnotations() {
        for (const ChartGeometry::Bar& bar : geometry.bars()) {
            if (bar.annotation.isEmpty()) {
                continue;
            }
            auto* text = new QCPItemText(&plot);
            text->setText(bar.annotation);
            text->setFont(picture.font);
            text->setColor(picture.text);
            // No line of the grid goes through a number.
            text->setBrush(picture.ground);
            text->setClipToAxisRect(false);
            text->position->setType(QCPItemPosition::ptPlotCoords);
            if (geometry.isSideways()) {
                text->setPositionAlignment(Qt::AlignLeft | Qt::AlignVCenter);
                text->position->setCoords(lengthOf(bar) + 5, positionOf(bar));
            } else {
                text->setPositionAlignment(Qt::AlignHCenter | Qt::AlignBottom);
                text->position->setCoords(positionOf(bar), lengthOf(bar) + 3);
            }
        }
    }

    const ChartPicture& picture;
    const ChartGeometry& geometry;
    const QRect area;
    QCustomPlot plot;
    QCPAxis* labelAxis = nullptr;
    QCPAxis* countAxis = nullptr;
};

}  // namespace

void PlotPainter::paint(QPaintDevice& device, const ChartPicture& picture) {
    Plot(picture).paint(device);
}

Library PlotPainter::library() const {
    return {QStringLiteral("QCustomPlot"), QStringLiteral(QCUSTOMPLOT_VERSION_STR),
            QStringLiteral("GPL-3.0-or-later")};
}

}  // namespace quillon
