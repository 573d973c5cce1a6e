// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Compare/CompareHeader.h"

#include "Quillon/Views/Controls/Colors.h"
#include "Quillon/Views/Controls/Hairline.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Grid/TableScroll.h"

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

namespace quillon {

CompareHeader::CompareHeader(ComparisonModel& comparisonModel, TableScroll& tableScroll)
    : QWidget(&tableScroll), model(comparisonModel), scroll(tableScroll) {
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setAccessibleName(QStringLiteral("Spalten"));
    connect(&scroll, &TableScroll::scrollXChanged, this, qOverload<>(&QWidget::update));
    connect(&model, &ComparisonModel::geometryChanged, this, [this] {
        updateGeometry();
        update();
    });
    connect(&model, &ComparisonModel::logsChanged, this, [this] {
        endGrip();
        update();
    });
}

QSize CompareHeader::sizeHint() const {
    return {0, std::max(usualHeight, ColumnHeaderCell::height())};
}

QRectF CompareHeader::cellArea(std::size_t column) const {
    const TableGeometry& geometry = model.geometry();
    return {geometry.columnLeft(column) - scroll.scrollX(), 0, geometry.columnWidth(column),
            static_cast<double>(height())};
}

void CompareHeader::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Window));
    const double line = hairlineWidth(painter);
    painter.fillRect(QRectF(0, height() - line, width(), line),
                     withOpacity(palette().color(QPalette::WindowText), 0.22));
    const TableGeometry::Range shown =
        model.geometry().columnsBetween(scroll.scrollX(), scroll.scrollX() + width());
    for (std::size_t column = shown.first; column < shown.last; ++column) {
        headerCell(column).paint(painter, cellArea(column), palette());
    }
}

ColumnHeaderCell CompareHeader::headerCell(std::size_t column) const {
    ColumnHeaderCell cell{model.logs().columns()[column]};
    cell.isHoveringHandle = grip ? grip->column == column : hovered == column;
    cell.hasMenu = false;
    cell.isTagClosed = true;
    return cell;
}

std::optional<std::size_t> CompareHeader::handleAt(QPointF point) const {
    return model.geometry().resizeHandleAt(point.x() + scroll.scrollX());
}

void CompareHeader::setHovered(std::optional<std::size_t> column) {
    if (column == hovered) {
        return;
    }
    hovered = column;
    if (hovered) {
        setCursor(Qt::SplitHCursor);
    } else {
        unsetCursor();
    }
    update();
}

void CompareHeader::mousePressEvent(QMouseEvent* event) {
    const auto column = handleAt(event->position());
    if (event->button() == Qt::LeftButton && column) {
        grip = Grip{*column, event->position().x(), model.geometry().columnWidth(*column)};
        qApp->installEventFilter(this);  // For Escape, wherever the focus is.
        update();
    }
}

void CompareHeader::mouseMoveEvent(QMouseEvent* event) {
    if (grip) {
        model.setColumnWidth(grip->column, grip->width + event->position().x() - grip->pressX);
    } else {
        setHovered(handleAt(event->position()));
    }
}

void CompareHeader::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && grip) {
        endGrip();
        setHovered(handleAt(event->position()));
    }
}

void CompareHeader::mouseDoubleClickEvent(QMouseEvent* event) {
    const auto column = handleAt(event->position());
    if (event->button() == Qt::LeftButton && column) {
        model.resetColumnWidth(*column);
    }
}

bool CompareHeader::eventFilter(QObject* watched, QEvent* event) {
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    if (!grip || !isKey || static_cast<QKeyEvent*>(event)->key() != Qt::Key_Escape) {
        return QWidget::eventFilter(watched, event);
    }
    event->accept();
    if (event->type() == QEvent::KeyPress) {
        model.setColumnWidth(grip->column, grip->width);
        endGrip();
    }
    return true;
}

void CompareHeader::endGrip() {
    grip.reset();
    qApp->removeEventFilter(this);
    setHovered(std::nullopt);
}

void CompareHeader::leaveEvent(QEvent*) {
    setHovered(std::nullopt);
}

bool CompareHeader::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        QToolTip::showText(help->globalPos(), toolTipAt(help->pos()), this);
        return true;
    }
    return QWidget::event(event);
}

QString CompareHeader::toolTipAt(QPointF point) const {
    if (handleAt(point)) {
        return QStringLiteral("Ziehen: Breite auf beiden Seiten ändern · Doppelklick: übliche Breite");
    }
    const auto column = model.geometry().columnAt(point.x() + scroll.scrollX());
    if (!column || !headerCell(*column).isCutOff(cellArea(*column))) {
        return {};
    }
    return plainToolTip(headerCell(*column).label() + QLatin1Char(' ') + headerCell(*column).tag());
}

}  // namespace quillon
