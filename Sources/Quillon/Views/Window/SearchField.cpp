// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Window/SearchField.h"

#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/Icons.h"

#include <QAction>
#include <QShortcut>

namespace quillon {

namespace {

constexpr int widthPx = 200;

}  // namespace

SearchField::SearchField(LogStore& logStore, QWidget* parent) : QLineEdit(parent), store(logStore) {
    setPlaceholderText(QStringLiteral("Suchen"));
    setAccessibleName(QStringLiteral("Suchen"));
    // The picture is a button, for Qt has no other in a field: what it is taken for, it does.
    QAction* const picture = addAction(icon(QStringLiteral("search")), QLineEdit::LeadingPosition);
    picture->setText(QStringLiteral("Suchen"));
    connect(picture, &QAction::triggered, this, &SearchField::startTyping);
    setWhatsThis(
        QStringLiteral("Zeigt nur die QSOs, in denen der Text vorkommt: in einem Wert oder im Namen eines "
                       "Feldes, auch eines ohne Spalte. Groß- und Kleinschreibung sind gleich; gesucht wird, "
                       "was gespeichert ist, ein Datum also als 20240315. Escape beendet die Suche. "
                       "Gesichert und geprüft wird immer das ganze Log."));
    // A tool bar puts away what has no room at all, and with large letters that would be the search.
    setMinimumWidth(widthPx / 2);
    setMaximumWidth(widthPx);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setAcceptDrops(false);
    setText(store.searchText());

    connect(this, &QLineEdit::textEdited, this, &SearchField::typed);
    connect(this, &QLineEdit::textChanged, this, [this](const QString& text) {
        setClearButtonEnabled(true);
        store.setSearchText(text);
    });
    connect(&store, &LogStore::searchTextChanged, this, [this] {
        if (text() != store.searchText()) {
            setText(store.searchText());
        }
    });
    connect(this, &QLineEdit::returnPressed, this, &SearchField::left);
    new QShortcut(Qt::Key_Down, this, this, &SearchField::left, Qt::WidgetShortcut);
    new QShortcut(
        Qt::Key_Escape, this, this,
        [this] {
            clear();
            emit left();
        },
        Qt::WidgetShortcut);
}

QSize SearchField::sizeHint() const {
    return {widthPx, QLineEdit::sizeHint().height()};
}

void SearchField::startTyping() {
    setFocus(Qt::ShortcutFocusReason);
    selectAll();
}

}  // namespace quillon
