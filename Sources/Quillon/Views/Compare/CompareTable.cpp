// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Compare/CompareTable.h"

#include "Quillon/Views/Compare/CentreBar.h"
#include "Quillon/Views/Compare/CompareBody.h"
#include "Quillon/Views/Compare/CompareHeader.h"
#include "Quillon/Views/Controls/Icons.h"
#include "Quillon/Views/Grid/TableScroll.h"

#include <QAction>
#include <QEvent>
#include <QStyle>

namespace quillon {

using Side = ComparisonModel::Side;

CompareTable::CompareTable(ComparisonModel& comparisonModel, QWidget* parent)
    : QWidget(parent),
      model(comparisonModel),
      left(makeHalf(Side::left)),
      right(makeHalf(Side::right)),
      bar(new CentreBar(model, *right.scroll, *right.body)) {
    left.scroll->setContent(left.header, left.body, nullptr);
    right.scroll->setContent(right.header, right.body, bar);
    left.scroll->moveUpAndDownWith(*right.scroll);
    setMinimumSize(left.scroll->minimumSizeHint().width() + right.scroll->minimumSizeHint().width(),
                   right.scroll->minimumSizeHint().height());
    for (const Half& each : {left, right}) {
        each.body->leavePressesTo(*bar);
    }
    connect(bar, &CentreBar::pressed, this, [this](std::optional<std::size_t> row) {
        commitEditing();
        if (row) {
            body(model.usedSide()).pressRow(*row);
        }
    });
    connect(&model, &ComparisonModel::geometryChanged, this, &CompareTable::fitContent);
    connect(&model, &ComparisonModel::cellWanted, this, [this] {
        for (const Half& each : {left, right}) {
            each.body->bringIntoView(*model.currentCell());
        }
    });
    fitContent();
}

CompareTable::~CompareTable() = default;

CompareTable::Half CompareTable::makeHalf(Side side) {
    auto* scroll = new TableScroll(this);
    const Half made{scroll, new CompareHeader(model, *scroll), new CompareBody(model, side, *scroll)};
    addCellActions(*made.body);
    connect(made.body, &CompareBody::noticed, this, &CompareTable::noticed);
    return made;
}

const CompareTable::Half& CompareTable::half(Side side) const {
    return side == Side::left ? left : right;
}

CompareBody& CompareTable::body(Side side) const {
    return *half(side).body;
}

CompareHeader& CompareTable::header(Side side) const {
    return *half(side).header;
}

TableScroll& CompareTable::scroll(Side side) const {
    return *half(side).scroll;
}

/// The keys that are shown are handled by the rows themselves.
void CompareTable::addCellActions(CompareBody& rows) {
    auto* edit = new QAction(QStringLiteral("&Bearbeiten\tF2"), &rows);
    auto* copy = new QAction(QStringLiteral("Wert &kopieren\tStrg+C"), &rows);
    connect(edit, &QAction::triggered, &rows, &CompareBody::editCurrentCell);
    connect(copy, &QAction::triggered, &rows, &CompareBody::copyCell);
    rows.addActions({edit, copy});
    connect(&rows, &CompareBody::menuAboutToShow, edit, [this, edit, copy, &rows] {
        edit->setIcon(icon(QStringLiteral("document-edit")));
        copy->setIcon(icon(QStringLiteral("edit-copy")));
        const auto& cell = model.currentCell();
        const bool isThere = cell && rows.isCellEditable(*cell);
        edit->setEnabled(isThere);
        copy->setEnabled(isThere);
    });
    addWidthActions(rows);
}

/// For those who do not drag: the column of the current cell, on both sides.
void CompareTable::addWidthActions(CompareBody& rows) {
    constexpr double stepPx = 16;
    const auto change = [this](double step) {
        const std::size_t column = model.currentCell()->column;
        model.setColumnWidth(column, model.geometry().columnWidth(column) + step);
    };
    const auto add = [this, &rows](const QString& text, const QKeySequence& key, auto act) {
        auto* action = new QAction(text, &rows);
        action->setShortcut(key);
        action->setShortcutContext(Qt::WidgetShortcut);
        connect(action, &QAction::triggered, this, [this, act] {
            if (const auto cell = model.currentCell()) {
                act();
                model.showCell(*cell);
            }
        });
        rows.addAction(action);
    };
    auto* separator = new QAction(&rows);
    separator->setSeparator(true);
    rows.addAction(separator);
    add(QStringLiteral("Spalte &breiter"), Qt::ALT | Qt::Key_Plus, [change] { change(stepPx); });
    add(QStringLiteral("Spalte &schmaler"), Qt::ALT | Qt::Key_Minus, [change] { change(-stepPx); });
    add(QStringLiteral("&Übliche Spaltenbreite"), Qt::ALT | Qt::Key_0,
        [this] { model.resetColumnWidth(model.currentCell()->column); });
}

void CompareTable::addMenuActions(const QList<QAction*>& further) {
    for (const Half& each : {left, right}) {
        auto* separator = new QAction(each.body);
        separator->setSeparator(true);
        each.body->addAction(separator);
        each.body->addActions(further);
    }
}

void CompareTable::enter() {
    body(model.usedSide()).enter();
}

void CompareTable::enterSideWithRecord() {
    const auto& cell = model.currentCell();
    if (cell && model.record(cell->row, model.usedSide()) == nullptr) {
        model.setUsedSide(model.usedSide() == Side::left ? Side::right : Side::left);
    }
    enter();
}

void CompareTable::commitEditing() {
    left.body->commitEditing();
    right.body->commitEditing();
}

void CompareTable::dismissEditors() {
    left.body->dismissEditor();
    right.body->dismissEditor();
}

void CompareTable::fitContent() {
    const TableGeometry& geometry = model.geometry();
    for (const Half& each : {left, right}) {
        each.scroll->setRowHeight(geometry.rowHeight());
        each.scroll->setContentSize({geometry.totalWidth(), geometry.contentHeight()});
    }
}

void CompareTable::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange) {
        model.refreshGeometry();
    }
    QWidget::changeEvent(event);
}

/// The columns of both sides get the same room.
void CompareTable::resizeEvent(QResizeEvent*) {
    const int beside = bar->width() + style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const int leftWidth = (width() - beside) / 2;
    left.scroll->setGeometry(0, 0, leftWidth, height());
    right.scroll->setGeometry(leftWidth, 0, width() - leftWidth, height());
}

}  // namespace quillon
