// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Compare/CentreBar.h"

#include "Quillon/Views/Compare/CompareBody.h"
#include "Quillon/Views/Compare/StatusSign.h"
#include "Quillon/Views/Controls/Colors.h"
#include "Quillon/Views/Controls/Hairline.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Grid/RowGround.h"
#include "Quillon/Views/Grid/TableScroll.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

namespace quillon {
namespace {

constexpr int marginPx = 4;
constexpr double lineOpacity = 0.22;

}  // namespace

CentreBar::CentreBar(const ComparisonModel& comparisonModel, TableScroll& tableScroll,
                     const CompareBody& besideBody)
    : QWidget(&tableScroll), model(comparisonModel), scroll(tableScroll), body(besideBody) {
    setAccessibleName(QStringLiteral("Status der Zeilen"));
    const auto refresh = [this] { update(); };
    connect(&tableScroll, &TableScroll::scrollYChanged, this, refresh);
    connect(&model, &ComparisonModel::logsChanged, this, refresh);
    connect(&model, &ComparisonModel::rowChanged, this, refresh);
    connect(&model, &ComparisonModel::currentCellChanged, this, refresh);
    connect(&model, &ComparisonModel::geometryChanged, this, &CentreBar::fitWidth);
    fitWidth();
}

void CentreBar::fitWidth() {
    setFixedWidth(static_cast<int>(model.geometry().rowHeight()) + 2 * marginPx);
    update();
}

QRectF CentreBar::signArea(std::size_t row) const {
    return {0, model.geometry().rowRect(row).top() - scroll.scrollY() + body.y(),
            static_cast<double>(width()), model.geometry().rowHeight()};
}

void CentreBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Window));
    const double line = hairlineWidth(painter);
    const QColor lines = withOpacity(palette().color(QPalette::WindowText), lineOpacity);
    painter.fillRect(QRectF(0, body.y() - line, width(), line), lines);
    painter.setClipRect(QRectF(0, body.y(), width(), body.height()));
    const TableGeometry::RowRange rows = body.builtRows();
    for (std::size_t row = rows.first; row < rows.last; ++row) {
        const QRectF area = signArea(row);
        if (!area.intersects(rect())) {
            continue;
        }
        RowGround{0, body.isRowSelected(row)}.paint(painter, area, palette());
        paintStatusSign(painter, area, model.logs().row(row).status(), palette());
    }
    painter.fillRect(QRectF(0, 0, line, height()), lines);
    painter.fillRect(QRectF(width() - line, 0, line, height()), lines);
}

std::optional<std::size_t> CentreBar::rowAt(QPointF point) const {
    return point.y() < body.y() ? std::nullopt
                                : model.geometry().rowAt(point.y() - body.y() + scroll.scrollY());
}

void CentreBar::mousePressEvent(QMouseEvent* event) {
    emit pressed(rowAt(event->position()));
}

bool CentreBar::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        const auto row = rowAt(help->pos());
        QToolTip::showText(help->globalPos(), row ? plainToolTip(model.statusText(*row)) : QString(), this);
        return true;
    }
    return QWidget::event(event);
}

}  // namespace quillon
