// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/CopyableList.h"

#include "Quillon/Views/Controls/Icons.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>

#include <algorithm>

namespace quillon {

CopyableList::CopyableList(int roleToCopy, QWidget* parent) : QListView(parent), copyRole(roleToCopy) {
    setFrameShape(QFrame::NoFrame);
    setUniformItemSizes(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
}

QString CopyableList::chosenText() const {
    QItemSelection blocks = selectionModel()->selection();
    std::ranges::sort(blocks, {}, &QItemSelectionRange::top);
    QString text;
    for (const QItemSelectionRange& block : blocks) {
        for (int row = block.top(); row <= block.bottom(); ++row) {
            text += (text.isEmpty() ? QString() : QStringLiteral("\n")) +
                    model()->index(row, 0).data(copyRole).toString();
        }
    }
    return text;
}

int CopyableList::chosenCount() const {
    int count = 0;
    for (const QItemSelectionRange& block : selectionModel()->selection()) {
        count += block.height();
    }
    return count;
}

bool CopyableList::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        auto* key = static_cast<QKeyEvent*>(event);
        if (key->matches(QKeySequence::Copy) || key->matches(QKeySequence::SelectAll)) {
            // Meant for this list and not for the window's command of that key.
            event->accept();
            return true;
        }
    }
    return QListView::event(event);
}

void CopyableList::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        copyChosen();
        return;
    }
    QListView::keyPressEvent(event);
}

void CopyableList::contextMenuEvent(QContextMenuEvent* event) {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction* copy = menu->addAction(icon(QStringLiteral("edit-copy")), QStringLiteral("Kopieren"),
                                    QKeySequence(QKeySequence::Copy), this, &CopyableList::copyChosen);
    copy->setEnabled(selectionModel()->hasSelection());
    menu->addAction(icon(QStringLiteral("edit-select-all")), QStringLiteral("Alles auswählen"),
                    QKeySequence(QKeySequence::SelectAll), this, &QListView::selectAll);
    menu->popup(event->globalPos());
}

void CopyableList::copyChosen() const {
    if (selectionModel()->hasSelection()) {
        QGuiApplication::clipboard()->setText(chosenText());
    }
}

}  // namespace quillon
