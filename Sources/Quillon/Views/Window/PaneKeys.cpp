// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Window/PaneKeys.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QShortcut>

#include <utility>

namespace quillon {

namespace {

bool takesKeyboard(const QWidget& widget) {
    return widget.isVisible() && widget.isEnabled() && (widget.focusPolicy() & Qt::TabFocus) != 0;
}

bool holds(const QWidget& pane, const QWidget* widget) {
    return widget != nullptr && (&pane == widget || pane.isAncestorOf(widget));
}

/// The first of the pane that the tab key would come to; null if there is none.
QWidget* firstStop(QWidget& pane) {
    QWidget* widget = &pane;
    do {
        if (holds(pane, widget) && takesKeyboard(*widget)) {
            return widget;
        }
        widget = widget->nextInFocusChain();
    } while (widget != &pane);
    return nullptr;
}

}  // namespace

PaneKeys::PaneKeys(QWidget& window, std::function<QWidgetList()> panesOfWindow)
    : panes(std::move(panesOfWindow)) {
    new QShortcut(Qt::Key_F6, &window, this, [this] { go(1); });
    new QShortcut(Qt::SHIFT | Qt::Key_F6, &window, this, [this] { go(-1); });
    new QShortcut(Qt::SHIFT | Qt::Key_F10, &window, this, &PaneKeys::openMenu);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { remember(now); });
}

void PaneKeys::remember(QWidget* focus) {
    for (QWidget* pane : panes()) {
        if (pane != nullptr && holds(*pane, focus)) {
            last[pane] = focus;
        }
    }
}

void PaneKeys::go(int step) {
    const QWidgetList all = panes();
    qsizetype current = step > 0 ? -1 : all.size();
    for (qsizetype index = 0; index < all.size(); ++index) {
        if (all[index] != nullptr && holds(*all[index], QApplication::focusWidget())) {
            current = index;
        }
    }
    for (qsizetype tries = 1; tries <= all.size(); ++tries) {
        QWidget* const pane = all[(current + step * tries + 2 * all.size()) % all.size()];
        if (pane == nullptr || !pane->isVisible()) {
            continue;
        }
        QWidget* const known = last.value(pane);
        if (QWidget* const stop = known != nullptr && takesKeyboard(*known) ? known : firstStop(*pane)) {
            stop->setFocus(Qt::ShortcutFocusReason);
            return;
        }
    }
}

void PaneKeys::openMenu() const {
    if (QWidget* const widget = QApplication::focusWidget()) {
        const QPoint place = widget->inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
        QContextMenuEvent event(QContextMenuEvent::Keyboard, place, widget->mapToGlobal(place));
        QApplication::sendEvent(widget, &event);
    }
}

}  // namespace quillon
