// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Table/RowRuler.h"

#include "Quillon/Platform/Desktop/FontMeasurer.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/Colors.h"
#include "Quillon/Views/Controls/Hairline.h"
#include "Quillon/Views/Grid/TableScroll.h"
#include "Quillon/Views/Table/TableBody.h"
#include "Quillon/Views/Table/TableHeader.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace quillon {
namespace {

constexpr double margin = 6;
constexpr double lineOpacity = 0.22;
/// The strip of a short log does not get wider with each new QSO.
constexpr int fewestDigits = 3;
constexpr int scrollIntervalMs = 50;

}  // namespace

RowRuler::RowRuler(const LogStore& logStore, TableScroll& tableScroll, const TableHeader& tableHeader,
                   TableBody& tableBody)
    : QWidget(&tableScroll), store(logStore), scroll(tableScroll), header(tableHeader), body(tableBody) {
    setAccessibleName(QStringLiteral("Zeilennummern"));
    body.leavePressesTo(*this);
    connect(&tableScroll, &TableScroll::scrollYChanged, this, qOverload<>(&QWidget::update));
    connect(&store, &LogStore::selectionChanged, this, qOverload<>(&QWidget::update));
    connect(&store, &LogStore::documentChanged, this, qOverload<>(&QWidget::update));
}

void RowRuler::setTableGeometry(const TableGeometry& tableGeometry) {
    geometry = tableGeometry;
    const auto digits =
        std::max<qsizetype>(fewestDigits, QString::number(store.document().records().size()).size());
    const double widest = QFontMetricsF(smallFont()).horizontalAdvance(QString(digits, QLatin1Char('8')));
    setFixedWidth(static_cast<int>(std::ceil(widest + 2 * margin)));
    update();
}

double RowRuler::top() const {
    return header.height();
}

void RowRuler::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Window));
    const double line = hairlineWidth(painter);
    const QColor lines = withOpacity(palette().color(QPalette::WindowText), lineOpacity);
    painter.fillRect(QRectF(0, top() - line, width(), line), lines);
    painter.fillRect(QRectF(width() - line, 0, line, height()), lines);
    painter.setClipRect(QRectF(0, top(), width(), height() - top()));
    painter.setFont(smallFont());
    const QColor selected = withOpacity(palette().color(QPalette::Highlight), RowGround::selectedOpacity);
    const TableGeometry::RowRange rows = body.builtRows();
    for (std::size_t row = rows.first; row < rows.last; ++row) {
        const QRectF area(0, geometry.rowRect(row).top() - scroll.scrollY() + top(), width() - line,
                          geometry.rowHeight());
        if (!area.intersects(rect())) {
            continue;
        }
        const bool isSelected = store.selection().contains(store.displayedRecord(row).id());
        if (isSelected) {
            painter.fillRect(area, selected);
        }
        painter.setPen(palette().color(isSelected ? QPalette::WindowText : QPalette::PlaceholderText));
        painter.drawText(area.adjusted(0, 0, -margin, -TableGeometry::separatorHeight),
                         Qt::AlignRight | Qt::AlignVCenter, QString::number(store.displayedIndex(row) + 1));
    }
}

void RowRuler::mousePressEvent(QMouseEvent* event) {
    const auto row = geometry.rowAt(event->position().y() - top() + scroll.scrollY());
    isDragging = row && event->position().y() >= top();
    if (isDragging) {
        body.pressRow(*row, event->button(), event->modifiers());
    } else {
        body.commitEditing();
    }
}

void RowRuler::mouseMoveEvent(QMouseEvent* event) {
    if (!isDragging || event->buttons() != Qt::LeftButton) {
        return;
    }
    pointerY = event->position().y();
    if (pointerY >= top() && pointerY < height()) {
        scrolling.stop();
    } else if (!scrolling.isActive()) {
        scrolling.start(scrollIntervalMs, this);
    }
    dragToPointer();
}

void RowRuler::mouseReleaseEvent(QMouseEvent*) {
    isDragging = false;
    scrolling.stop();
}

void RowRuler::timerEvent(QTimerEvent*) {
    dragToPointer();
}

void RowRuler::dragToPointer() {
    if (geometry.rowCount() == 0) {
        scrolling.stop();
        return;
    }
    const double y = std::clamp(pointerY - top() + scroll.scrollY(), 0.0, geometry.contentHeight() - 1);
    body.dragToRow(geometry.rowAt(y).value_or(0));
}

void RowRuler::contextMenuEvent(QContextMenuEvent* event) {
    QApplication::sendEvent(&body, event);
}

}  // namespace quillon
