// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Grid/CellView.h"
#include "Quillon/Views/Grid/TableAccessibility.h"
#include "Quillon/Views/Grid/TableKeys.h"
#include "Quillon/Views/Grid/TableScroll.h"
#include "Quillon/Views/Table/StatusGutterCell.h"
#include "Quillon/Views/Table/TableBody.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QToolTip>

// What the mouse, the keyboard and the pointer at rest do in the table.

namespace quillon {
namespace {

bool isWithinRow(TableMove move) {
    return move == TableMove::left || move == TableMove::right || move == TableMove::rowStart ||
           move == TableMove::rowEnd;
}

}  // namespace

// The mouse.

void TableBody::mousePressEvent(QMouseEvent* event) {
    const QPointF point = contentPoint(event->position());
    if (const std::optional<std::size_t> row = geometry.rowAt(point.y())) {
        const auto column = columnAt(event->position());
        press({*row, column.value_or(current.position() ? current.position()->column : 0)}, event->button(),
              event->modifiers());
        return;
    }
    pressedCell.reset();
    cellEditor->commit();
    setFocus(Qt::MouseFocusReason);
    if (event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier) {
        if (!current.isFramed()) {
            // Without a selection it would be framed, on a QSO that nobody chose.
            current.clear();
            noteCurrentCell();
        }
        store.setSelection({}, std::nullopt);
    }
}

void TableBody::pressRow(std::size_t row, Qt::MouseButton button, Qt::KeyboardModifiers keys) {
    press({row, current.position() ? current.position()->column : 0}, button, keys);
}

void TableBody::press(CellPosition cell, Qt::MouseButton button, Qt::KeyboardModifiers keys) {
    // What is written now can move the row, but it was this one that was meant.
    const CellContent pressed = current.contentOf(cell);
    pressedCell = pressed;
    cellEditor->commit();
    setFocus(Qt::MouseFocusReason);
    if (const auto now = current.positionOf(pressed)) {
        // Not brought into view: a row that moves under the pointer cannot be double-clicked.
        current.set(*now);
        noteCurrentCell();
        update();
    }
    if (button == Qt::LeftButton) {
        select(pressed.record, keys);
    } else if (!store.selection().contains(pressed.record)) {
        select(pressed.record, {});
    }
}

void TableBody::dragToRow(std::size_t row) {
    if (!current.position() || current.position()->row == row) {
        return;
    }
    setCurrentCell({row, current.position()->column});
    select(current.content().record, Qt::ShiftModifier);
}

void TableBody::mouseDoubleClickEvent(QMouseEvent* event) {
    // The first press may have written, and so moved another QSO under the pointer.
    const auto cell = pressedCell ? current.positionOf(*pressedCell) : std::nullopt;
    const bool isOnCell = geometry.rowAt(contentPoint(event->position()).y()) && columnAt(event->position());
    if (event->button() == Qt::LeftButton && isOnCell && cell) {
        startEditing(*cell);
    } else {
        mousePressEvent(event);
    }
}

void TableBody::contextMenuEvent(QContextMenuEvent* event) {
    if (geometry.rowCount() == 0) {
        return;
    }
    QPoint position = event->globalPos();
    if (event->reason() == QContextMenuEvent::Keyboard && current.position()) {
        bringIntoView(*current.position());
        position = mapToGlobal(cellArea(*current.position()).bottomLeft().toPoint());
    }
    emit menuAboutToShow();
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addActions(actions());
    menu->popup(position);
}

// The keyboard.

void TableBody::keyPressEvent(QKeyEvent* event) {
    if (!handleKey(*event)) {
        QWidget::keyPressEvent(event);
    }
}

bool TableBody::handleKey(const QKeyEvent& event) {
    const Qt::KeyboardModifiers keys = event.modifiers() & ~Qt::KeypadModifier;
    if (const auto move = moveFor(event)) {
        moveCurrent(*move, keys);
        return true;
    }
    if (event.key() == Qt::Key_Space) {
        if (current.position()) {
            select(current.content().record, keys);
        }
        return true;
    }
    const QString typed = typedText(event);
    if (typed.isEmpty()) {
        return false;
    }
    typeIntoFrame(typed);
    return true;
}

void TableBody::inputMethodEvent(QInputMethodEvent* event) {
    if (!event->commitString().isEmpty()) {
        typeIntoFrame(event->commitString());
    }
    event->accept();
}

void TableBody::moveCurrent(TableMove move, Qt::KeyboardModifiers modifiers) {
    if (geometry.rowCount() == 0) {
        return;
    }
    // The first key in the table only puts the keyboard somewhere.
    const bool isFirstMove = !current.position();
    const CellPosition from = current.position().value_or(firstInView());
    const tallyrig::UUID fromRecord = current.contentOf(from).record;
    setCurrentCell(isFirstMove ? from : *geometry.target(from, move, height()));
    const tallyrig::UUID record = current.content().record;
    if (isWithinRow(move) && !isFirstMove) {
        if (!current.isFramed()) {
            select(record, {});
        }
        return;
    }
    const bool toTableEnd = move == TableMove::tableStart || move == TableMove::tableEnd;
    if (modifiers.testFlag(Qt::ShiftModifier)) {
        if (!store.selectionAnchor()) {
            select(fromRecord, {});
        }
        select(record, Qt::ShiftModifier);
    } else if (toTableEnd || !modifiers.testFlag(Qt::ControlModifier)) {
        select(record, {});
    }
}

void TableBody::focusInEvent(QFocusEvent* event) {
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason ||
        event->reason() == Qt::ShortcutFocusReason) {
        enter();
    }
    // A menu that closes gives the focus back before its command runs, which may be about the header.
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::MenuBarFocusReason) {
        noteCurrentCell();
    }
    update();
}

void TableBody::focusOutEvent(QFocusEvent*) {
    update();
}

// Tool tips.

bool TableBody::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        QToolTip::showText(help->globalPos(), toolTipAt(help->pos()), this);
        return true;
    }
    return QWidget::event(event);
}

QString TableBody::toolTipAt(QPointF point) const {
    const std::optional<std::size_t> row = geometry.rowAt(contentPoint(point).y());
    if (!row) {
        return {};
    }
    const QSORowView shown = rowView(*row);
    if (const auto column = columnAt(point)) {
        const CellView cell{shown.record, store.columns()[*column]};
        return cell.isCutOff(cellArea({*row, *column}), geometry.metrics(), font())
                   ? plainToolTip(cell.text())
                   : QString();
    }
    if (gutterArea(*row).contains(point)) {
        const StatusGutterCell mark{shown.severity, store.recordIssueMessages(shown.record.id())};
        return plainToolTip(mark.toolTip());
    }
    return {};
}

}  // namespace quillon
