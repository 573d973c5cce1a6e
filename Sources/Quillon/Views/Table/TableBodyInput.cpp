#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/Icons.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Table/CellView.h"
#include "Quillon/Views/Table/StatusGutterCell.h"
#include "Quillon/Views/Table/TableAccessibility.h"
#include "Quillon/Views/Table/TableBody.h"
#include "Quillon/Views/Table/TableScroll.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QToolTip>

// What the mouse, the keyboard and the pointer at rest do in the table.

namespace quillon {
namespace {

std::optional<TableMove> moveFor(const QKeyEvent& event) {
    const bool control = event.modifiers().testFlag(Qt::ControlModifier);
    switch (event.key()) {
        case Qt::Key_Up:
            return TableMove::up;
        case Qt::Key_Down:
            return TableMove::down;
        case Qt::Key_Left:
            return TableMove::left;
        case Qt::Key_Right:
            return TableMove::right;
        case Qt::Key_PageUp:
            return TableMove::pageUp;
        case Qt::Key_PageDown:
            return TableMove::pageDown;
        case Qt::Key_Home:
            return control ? TableMove::tableStart : TableMove::rowStart;
        case Qt::Key_End:
            return control ? TableMove::tableEnd : TableMove::rowEnd;
        default:
            return std::nullopt;
    }
}

bool isWithinRow(TableMove move) {
    return move == TableMove::left || move == TableMove::right || move == TableMove::rowStart ||
           move == TableMove::rowEnd;
}

}  // namespace

// The mouse.

void TableBody::mousePressEvent(QMouseEvent* event) {
    const QPointF point = contentPoint(event->position());
    const std::optional<std::size_t> row = geometry.rowAt(point.y());
    std::optional<CellContent> pressed;
    if (row) {
        pressed = contentOf({*row, geometry.columnAt(point.x()).value_or(current ? current->column : 0)});
    }
    cellEditor->commit();
    setFocus(Qt::MouseFocusReason);
    if (!pressed) {
        if (event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier) {
            store.setSelection({}, std::nullopt);
        }
        return;
    }
    if (const auto cell = positionOf(*pressed)) {
        // Not brought into view: a row that moves under the pointer cannot be double-clicked.
        current = cell;
        currentContent = *pressed;
        announceCurrentCell(*this);
        update();
    }
    if (event->button() == Qt::LeftButton) {
        select(pressed->record, event->modifiers());
    } else if (!store.selection().contains(pressed->record)) {
        select(pressed->record, {});
    }
}

void TableBody::mouseDoubleClickEvent(QMouseEvent* event) {
    const QPointF point = contentPoint(event->position());
    const auto row = geometry.rowAt(point.y());
    const auto column = geometry.columnAt(point.x());
    if (event->button() == Qt::LeftButton && row && column) {
        startEditing({*row, *column});
    } else {
        mousePressEvent(event);
    }
}

void TableBody::contextMenuEvent(QContextMenuEvent* event) {
    if (geometry.rowCount() == 0) {
        return;
    }
    QPoint position = event->globalPos();
    if (event->reason() == QContextMenuEvent::Keyboard && current) {
        bringIntoView(*current);
        position = mapToGlobal(cellArea(*current).bottomLeft().toPoint());
    }
    openMenu(position);
}

void TableBody::openMenu(QPoint globalPosition) {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction* edit =
        menu->addAction(icon(QStringLiteral("document-edit")), QStringLiteral("Bearbeiten"), menu, [this] {
            if (current) {
                startEditing(*current);
            }
        });
    edit->setEnabled(current && geometry.columnCount() > 0);
    QAction* copy = menu->addAction(icon(QStringLiteral("edit-copy")), QStringLiteral("Kopieren"), this,
                                    &TableBody::copySelection);
    menu->addSeparator();
    QAction* remove = menu->addAction(icon(QStringLiteral("edit-delete")), QStringLiteral("QSO löschen"),
                                      &store, &LogStore::deleteSelected);
    for (QAction* action : {copy, remove}) {
        action->setEnabled(!store.selection().empty());
    }
    menu->popup(globalPosition);
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
    if (event.matches(QKeySequence::Copy)) {
        copySelection();
        return true;
    }
    if (event.matches(QKeySequence::SelectAll)) {
        store.selectAllDisplayed();
        return true;
    }
    switch (event.key()) {
        case Qt::Key_Space:
            if (current) {
                select(currentContent.record, keys);
            }
            return true;
        case Qt::Key_F2:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (current && keys == Qt::NoModifier) {
                startEditing(*current);
            }
            return true;
        case Qt::Key_Delete:
            if (keys == Qt::NoModifier) {
                store.deleteSelected();
            }
            return true;
        default:
            return false;
    }
}

void TableBody::moveCurrent(TableMove move, Qt::KeyboardModifiers modifiers) {
    const bool isFirstMove = !current;
    if (isFirstMove) {
        setFirstCurrent();
    }
    if (!current) {
        return;
    }
    const CellContent from = currentContent;
    if (!isFirstMove) {
        setCurrentCell(*geometry.target(*current, move, height()));
    }
    if (isWithinRow(move)) {
        return;
    }
    const bool toTableEnd = move == TableMove::tableStart || move == TableMove::tableEnd;
    if (modifiers.testFlag(Qt::ShiftModifier)) {
        if (!store.selectionAnchor()) {
            select(from.record, {});
        }
        select(currentContent.record, Qt::ShiftModifier);
    } else if (toTableEnd || !modifiers.testFlag(Qt::ControlModifier)) {
        select(currentContent.record, {});
    }
}

/// Begins at the first row that is in view.
void TableBody::setFirstCurrent() {
    if (geometry.rowCount() > 0) {
        setCurrentCell({geometry.rowAt(scroll.scrollY() + TableGeometry::rowHeight - 1).value_or(0), 0});
    }
}

void TableBody::focusInEvent(QFocusEvent* event) {
    if (!current && event->reason() != Qt::MouseFocusReason) {
        setFirstCurrent();
    }
    announceCurrentCell(*this);
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
    const QPointF place = contentPoint(point);
    const std::optional<std::size_t> row = geometry.rowAt(place.y());
    if (!row) {
        return {};
    }
    const QSORowView shown = rowView(*row);
    if (const auto column = geometry.columnAt(place.x())) {
        const CellView cell{shown.record, store.columns()[*column]};
        return cell.isCutOff(cellArea({*row, *column}), font()) ? plainToolTip(cell.text()) : QString();
    }
    if (geometry.hasGutter() && geometry.gutterRect(*row).contains(place)) {
        const StatusGutterCell mark{shown.severity, store.recordIssueMessages(shown.record.id())};
        return plainToolTip(mark.toolTip());
    }
    return {};
}

}  // namespace quillon
