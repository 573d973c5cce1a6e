// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Compare/CompareBody.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Quillon/Views/Grid/CellView.h"
#include "Quillon/Views/Grid/TableAccessibility.h"
#include "Quillon/Views/Grid/TableKeys.h"
#include "Quillon/Views/Grid/TableScroll.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QToolTip>

#include <algorithm>

// What the mouse, the keyboard and the pointer at rest do in the rows of a comparison.

namespace quillon {
namespace {

/// Keys that mean a cell here; in the window they are about the open log.
bool isAboutCell(const QKeyEvent& event) {
    return event.matches(QKeySequence::Copy) || event.matches(QKeySequence::Paste);
}

bool isStepInHistory(const QKeyEvent& event) {
    return event.matches(QKeySequence::Undo) || event.matches(QKeySequence::Redo) ||
           (event.key() == Qt::Key_Y && event.modifiers() == Qt::ControlModifier);
}

/// What a key of the window would do to the open log, who works at another file wants done to that.
bool isAboutFile(const QKeyEvent& event) {
    return isStepInHistory(event) || event.matches(QKeySequence::Save);
}

}  // namespace

// The mouse.

std::optional<CellPosition> CompareBody::cellAt(QPointF point) const {
    const auto row = model.geometry().rowAt(point.y() + scroll.scrollY());
    const auto column = model.geometry().columnAt(point.x() + scroll.scrollX());
    return row && column ? std::optional(CellPosition{*row, *column}) : std::nullopt;
}

void CompareBody::mousePressEvent(QMouseEvent* event) {
    const auto row = model.geometry().rowAt(event->position().y() + scroll.scrollY());
    pressed = cellAt(event->position());
    if (pressed) {
        press(*pressed);
    } else if (row) {
        pressRow(*row);
    } else {
        cellEditor->commit();
        setFocus(Qt::MouseFocusReason);
    }
}

void CompareBody::press(CellPosition cell) {
    // Rows stay where they are until the end of this turn, whatever is written now.
    cellEditor->commit();
    setFocus(Qt::MouseFocusReason);
    model.setCurrentCell(cell);
}

void CompareBody::pressRow(std::size_t row) {
    press({row, currentCell() ? currentCell()->column : 0});
}

void CompareBody::mouseDoubleClickEvent(QMouseEvent* event) {
    // The first press may have written, and so moved another row under the pointer.
    const auto cell = cellAt(event->position());
    if (event->button() == Qt::LeftButton && cell && cell == pressed) {
        startEditing(*cell);
    } else {
        mousePressEvent(event);
    }
}

void CompareBody::contextMenuEvent(QContextMenuEvent* event) {
    if (model.geometry().rowCount() == 0) {
        return;
    }
    QPoint position = event->globalPos();
    if (event->reason() == QContextMenuEvent::Keyboard && currentCell()) {
        bringIntoView(*currentCell());
        position = mapToGlobal(cellArea(*currentCell()).bottomLeft().toPoint());
    }
    emit menuAboutToShow();
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addActions(actions());
    menu->popup(position);
}

void CompareBody::copyCell() const {
    const tallyrig::ADIFRecord* const record =
        currentCell() ? model.record(currentCell()->row, shownSide) : nullptr;
    if (record != nullptr && currentCell()->column < model.logs().columns().size()) {
        QGuiApplication::clipboard()->setText(
            toQString(record->valueOrEmpty(model.logs().columns()[currentCell()->column])));
    }
}

// The keyboard.

void CompareBody::keyPressEvent(QKeyEvent* event) {
    if (!handleKey(*event)) {
        QWidget::keyPressEvent(event);
    }
}

bool CompareBody::handleKey(const QKeyEvent& event) {
    if (event.matches(QKeySequence::Copy)) {
        copyCell();
        return true;
    }
    if (event.matches(QKeySequence::Paste)) {
        pasteIntoFrame();
        return true;
    }
    if (event.matches(QKeySequence::Save)) {
        cellEditor->commit();
        if (model.saveFile(shownSide)) {
            emit noticed(QStringLiteral("„%1“ gespeichert").arg(model.sideName(shownSide)));
        }
        return true;
    }
    if (isStepInHistory(event)) {
        emit noticed(QStringLiteral("Änderungen an „%1“ lassen sich nicht rückgängig machen.")
                         .arg(model.sideName(shownSide)));
        return true;
    }
    if (const auto move = moveFor(event)) {
        // The first key in the table only puts the keyboard somewhere.
        const auto cell = currentCell() ? model.geometry().target(*currentCell(), *move, height())
                                        : std::optional(firstInView());
        if (cell) {
            model.showCell(*cell);
        }
        return true;
    }
    switch (event.key()) {
        case Qt::Key_F2:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            editCurrentCell();
            return true;
        case Qt::Key_Space:
            return true;
        default:
            break;
    }
    const QString typed = typedText(event);
    if (typed.isEmpty()) {
        return false;
    }
    typeIntoFrame(typed);
    return true;
}

void CompareBody::inputMethodEvent(QInputMethodEvent* event) {
    if (!event->commitString().isEmpty()) {
        typeIntoFrame(event->commitString());
    }
    event->accept();
}

void CompareBody::focusInEvent(QFocusEvent* event) {
    model.setUsedSide(shownSide);
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason ||
        event->reason() == Qt::ShortcutFocusReason) {
        enter();
    }
    announceCurrentCell(*this);
    update();
}

void CompareBody::focusOutEvent(QFocusEvent*) {
    update();
}

// Tool tips.

bool CompareBody::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        const auto& key = *static_cast<QKeyEvent*>(event);
        if (isAboutCell(key) || (isAboutFile(key) && model.isFile(shownSide))) {
            event->accept();
            return true;
        }
    }
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        QToolTip::showText(help->globalPos(), toolTipAt(help->pos()), this);
        return true;
    }
    return QWidget::event(event);
}

QString CompareBody::toolTipAt(QPointF point) const {
    const auto cell = cellAt(point);
    const tallyrig::ADIFRecord* const record = cell ? model.record(cell->row, shownSide) : nullptr;
    if (record == nullptr) {
        return {};
    }
    const CellView shown{*record, model.logs().columns()[cell->column], CellText::stored};
    return shown.isCutOff(cellArea(*cell), model.geometry().metrics(), font()) ? plainToolTip(shown.text())
                                                                               : QString();
}

}  // namespace quillon
