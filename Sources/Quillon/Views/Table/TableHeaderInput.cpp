// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Grid/InlineEditor.h"
#include "Quillon/Views/Grid/TableScroll.h"
#include "Quillon/Views/Table/ColumnCommands.h"
#include "Quillon/Views/Table/TableHeader.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QToolTip>

#include <algorithm>
#include <cmath>
#include <utility>

// What the mouse, the keyboard and the pointer at rest do in the header.

namespace quillon {
namespace {

constexpr double resizeThreshold = 1;
constexpr double dragThreshold = 6;

double distance(QPointF from, QPointF to) {
    return std::hypot(to.x() - from.x(), to.y() - from.y());
}

}  // namespace

void TableHeader::mousePressEvent(QMouseEvent* event) {
    sortingBeforeClick.reset();
    if (nameEditor->isOpen()) {
        nameEditor->commit();
        return;
    }
    if (event->button() != Qt::LeftButton) {
        return;
    }
    const Place place = placeAt(event->position());
    if (place.part == Part::menu) {
        openMenu(place.column,
                 mapToGlobal(ColumnHeaderCell::menuArea(cellArea(place.column)).bottomLeft().toPoint()));
        return;
    }
    if (place.part == Part::cell || place.part == Part::handle) {
        const QPointF point = contentPoint(event->position());
        grip = Grip{place, event->position().x(), point, point, std::nullopt, false};
        qApp->installEventFilter(this);  // For Escape, wherever the focus is.
        update();
    }
}

void TableHeader::mouseMoveEvent(QMouseEvent* event) {
    if (grip) {
        dragTo(event->position());
    } else {
        setHovered(placeAt(event->position()));
    }
}

void TableHeader::dragTo(QPointF point) {
    grip->now = contentPoint(point);
    const std::size_t column = grip->place.column;
    if (grip->place.part == Part::handle) {
        // A column that shrinks at the right end pulls the content along.
        const double moved = point.x() - grip->pressX;
        if (!grip->resizeStart && std::abs(moved) >= resizeThreshold) {
            grip->resizeStart = store.width(store.columns()[column]);
        }
        if (grip->resizeStart) {
            store.setWidth(*grip->resizeStart + moved, store.columns()[column]);
        }
        return;
    }
    if (!grip->isDragging && distance(grip->start, grip->now) >= dragThreshold) {
        grip->isDragging = true;
        setCursor(Qt::ClosedHandCursor);
    }
    if (grip->isDragging) {
        // Pulled over an edge, the columns behind it come into view.
        if (point.x() < 0 || point.x() > width()) {
            scroll.setScrollX(scroll.scrollX() + (point.x() < 0 ? point.x() : point.x() - width()));
            grip->now = contentPoint(point);
        }
        update();
    }
}

void TableHeader::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !grip) {
        return;
    }
    grip->now = contentPoint(event->position());
    const std::optional<std::size_t> target = dropTarget();
    const Grip released = *grip;
    endGrip();
    if (target) {
        store.moveColumnBefore(store.columns()[released.place.column], store.columns()[*target]);
    } else if (!released.isDragging && placeAt(event->position()) == released.place &&
               released.place.part == Part::cell) {
        click(released.place.column);
    }
    setHovered(placeAt(event->position()));
}

bool TableHeader::eventFilter(QObject* watched, QEvent* event) {
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    if (!grip || !isKey || static_cast<QKeyEvent*>(event)->key() != Qt::Key_Escape) {
        return QWidget::eventFilter(watched, event);
    }
    event->accept();
    if (event->type() == QEvent::KeyPress) {
        takeGripBack();
    }
    return true;
}

void TableHeader::takeGripBack() {
    if (grip->resizeStart) {
        store.setWidth(*grip->resizeStart, store.columns()[grip->place.column]);
    }
    endGrip();
}

void TableHeader::endGrip() {
    grip.reset();
    qApp->removeEventFilter(this);
    unsetCursor();
    hovered = {};
    update();
}

void TableHeader::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        return;
    }
    const Place place = placeAt(event->position());
    if (place.part == Part::handle) {
        store.autoFitColumns({store.columns()[place.column]});
    } else if (place.part == Part::cell) {
        restoreSorting();
        startRename(store.columns()[place.column]);
    } else {
        mousePressEvent(event);
    }
}

void TableHeader::click(std::size_t column) {
    sortingBeforeClick = Sorting{store.sortColumn(), store.sortAscending()};
    store.toggleSort(store.columns()[column]);
}

/// A double click begins with a click, which has sorted: renaming shall leave the order alone.
void TableHeader::restoreSorting() {
    if (!sortingBeforeClick) {
        return;
    }
    const Sorting before = *std::exchange(sortingBeforeClick, std::nullopt);
    if (!before.column) {
        store.clearSort();
        return;
    }
    if (store.sortColumn() != before.column) {
        store.toggleSort(*before.column);
    }
    if (store.sortAscending() != before.ascending) {
        store.toggleSort(*before.column);
    }
}

void TableHeader::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() == QContextMenuEvent::Keyboard) {
        if (focusedColumn < geometry.columnCount()) {
            openMenu(focusedColumn, mapToGlobal(cellArea(focusedColumn).bottomLeft().toPoint()));
        }
    } else if (const Place place = placeAt(event->pos());
               place.part != Part::gutter && place.part != Part::none) {
        openMenu(place.column, event->globalPos());
    }
}

void TableHeader::openMenu(std::size_t column, QPoint globalPosition) {
    setFocusedColumn(column);
    emit currentColumnChanged();
    emit menuAboutToShow();
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addActions(actions());
    menu->popup(globalPosition);
}

void TableHeader::leaveEvent(QEvent*) {
    setHovered({});
}

void TableHeader::setHovered(Place place) {
    if (place == hovered) {
        return;
    }
    hovered = place;
    if (place.part == Part::handle) {
        setCursor(Qt::SplitHCursor);
    } else {
        unsetCursor();
    }
    update();
}

void TableHeader::keyPressEvent(QKeyEvent* event) {
    const std::size_t count = geometry.columnCount();
    if (count == 0) {
        QWidget::keyPressEvent(event);
        return;
    }
    switch (event->key()) {
        case Qt::Key_Left:
            setFocusedColumn(focusedColumn - std::min<std::size_t>(focusedColumn, 1));
            break;
        case Qt::Key_Right:
            setFocusedColumn(focusedColumn + 1);
            break;
        case Qt::Key_Home:
            setFocusedColumn(0);
            break;
        case Qt::Key_End:
            setFocusedColumn(count - 1);
            break;
        case Qt::Key_Space:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            store.toggleSort(store.columns()[focusedColumn]);
            break;
        default:
            QWidget::keyPressEvent(event);
            return;
    }
    scroll.setScrollX(geometry.scrollXShowing(focusedColumn, scroll.scrollX(), scroll.viewportWidth()));
    emit currentColumnChanged();
    update();
}

void TableHeader::setFocusedColumn(std::size_t column) {
    const std::size_t count = geometry.columnCount();
    focusedColumn = count == 0 ? 0 : std::min(column, count - 1);
    focusedName = count == 0 ? std::string() : store.columns()[focusedColumn];
    if (count == 0 || !hasFocus()) {
        setAccessibleDescription({});
        return;
    }
    const ColumnHeaderCell cell = headerCell(focusedColumn);
    setAccessibleDescription(cell.label() + QStringLiteral(", ") + cell.remark());
}

void TableHeader::focusInEvent(QFocusEvent* event) {
    setFocusedColumn(focusedColumn);
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::MenuBarFocusReason) {
        emit currentColumnChanged();
    }
    QWidget::focusInEvent(event);
}

bool TableHeader::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        QToolTip::showText(help->globalPos(), toolTipAt(help->pos()), this);
        return true;
    }
    return QWidget::event(event);
}

QString TableHeader::toolTipAt(QPointF point) const {
    const Place place = placeAt(point);
    switch (place.part) {
        case Part::gutter:
            return QStringLiteral("Prüfstatus je QSO");
        case Part::handle:
            return QStringLiteral("Ziehen: Breite ändern · Doppelklick: an Inhalt anpassen");
        case Part::cell: {
            const ColumnHeaderCell cell = headerCell(place.column);
            return cell.isCutOff(cellArea(place.column))
                       ? plainToolTip(cell.label() + QLatin1Char(' ') + cell.tag())
                       : QString();
        }
        case Part::menu:
        case Part::none:
            break;
    }
    return {};
}

}  // namespace quillon
