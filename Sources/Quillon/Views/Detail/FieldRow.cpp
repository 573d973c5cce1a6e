// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Detail/FieldRow.h"

#include "Quillon/Catalogue/ADIFFieldCatalog.h"
#include "Quillon/Platform/Desktop/FontMeasurer.h"
#include "Quillon/Views/Controls/Colors.h"
#include "Quillon/Views/Controls/Icons.h"
#include "Quillon/Views/Controls/KeptFont.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Quillon/Views/Controls/UnseenCharacters.h"
#include "Tallyrig/Text/Text.h"
#include "Tallyrig/Text/VisibleText.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QToolButton>

#include <algorithm>
#include <limits>

namespace quillon {

namespace {

/// Left of a field, for the mark.
constexpr int markRoomPx = 8;

/// The name of a field may be any text.
QString shownName(std::string_view name) {
    return toQString(tallyrig::text::visibleText(cutToShow(name)));
}

}  // namespace

LogTextField::LogTextField(QWidget* parent) : QLineEdit(parent) {
    // The limit of a line edit would cut off the end of a long remark.
    setMaxLength(std::numeric_limits<int>::max());
    // A log file that is dropped here is to be opened.
    setAcceptDrops(false);
    markUnseenCharacters(*this);
}

void LogTextField::showText(const QString& newText) {
    // The log keeps its spelling of a text when an equal one is typed.
    if (newText == text() ||
        (hasFocus() && tallyrig::text::equal(newText.toStdString(), text().toStdString()))) {
        return;
    }
    const int cursor = hasFocus() ? cursorPosition() : 0;
    setText(newText);
    setCursorPosition(std::min(cursor, static_cast<int>(newText.size())));
}

bool LogTextField::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        auto* key = static_cast<QKeyEvent*>(event);
        if (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo)) {
            event->ignore();
            return false;
        }
    }
    return QLineEdit::event(event);
}

void LogTextField::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Delete && event->modifiers() == Qt::ControlModifier) {
        emit removeRequested();
        return;
    }
    if (event->matches(QKeySequence::Undo) || event->matches(QKeySequence::Redo)) {
        event->ignore();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void LogTextField::contextMenuEvent(QContextMenuEvent* event) {
    QMenu* const menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (!isReadOnly()) {
        // Undo and redo, with the line below them.
        for (QAction* const action : menu->actions()) {
            menu->removeAction(action);
            if (action->isSeparator()) {
                break;
            }
        }
    }
    menu->addSeparator();
    menu->addAction(icon(QStringLiteral("list-remove")), QStringLiteral("Feld entfernen"),
                    QKeySequence(Qt::CTRL | Qt::Key_Delete), this, &LogTextField::removeRequested);
    menu->popup(event->globalPos());
}

FieldRow::FieldRow(QWidget* parent)
    : QWidget(parent),
      label(new ElidedLabel(Qt::ElideRight, this)),
      valueEdit(new LogTextField(this)),
      remove(new QToolButton(this)) {
    keepFont(*label, smallFont);
    label->setForegroundRole(QPalette::PlaceholderText);
    label->setBuddy(valueEdit);
    remove->setIcon(icon(QStringLiteral("list-remove")));
    remove->setAutoRaise(true);
    remove->setToolTip(QStringLiteral("Feld entfernen"));
    remove->setFocusPolicy(Qt::TabFocus);

    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(markRoomPx, 2, 0, 2);
    layout->setHorizontalSpacing(4);
    layout->setVerticalSpacing(2);
    layout->addWidget(label, 0, 0);
    layout->addWidget(valueEdit, 1, 0);
    layout->addWidget(remove, 1, 1);
    layout->setColumnStretch(0, 1);

    connect(valueEdit, &QLineEdit::textEdited, this, &FieldRow::valueEdited);
    connect(valueEdit, &LogTextField::removeRequested, this, &FieldRow::removeClicked);
    connect(remove, &QToolButton::clicked, this, &FieldRow::removeClicked);
}

void FieldRow::showName(std::string_view name) {
    const QString newName = toQString(name);
    if (fieldName != newName) {
        fieldName = newName;
        const QString germanName = shownName(ADIFFieldCatalog::label(name));
        label->setText(germanName);
        label->setToolTip(plainToolTip(shownName(name)));
        const QString meaning = plainToolTip(shownName(ADIFFieldCatalog::explanation(name)));
        explain(*valueEdit, meaning);
        explain(*label, meaning);
        valueEdit->setAccessibleName(germanName);
        remove->setAccessibleName(QStringLiteral("Feld entfernen: ") + germanName);
    }
}

void FieldRow::setOffered(bool offers) {
    remove->setVisible(!offers);
    valueEdit->setPlaceholderText(offers ? QStringLiteral("Fehlt: Wert eingeben") : QStringLiteral("Wert"));
}

void FieldRow::offer(std::string_view name) {
    showName(name);
    setOffered(true);
    valueEdit->setReadOnly(false);
    valueEdit->setToolTip(QStringLiteral("Das QSO hat dieses Feld nicht."));
    valueEdit->showText(QString());
}

void FieldRow::show(std::string_view name, std::string_view value) {
    showName(name);
    setOffered(false);
    const QString obstacle = whyNotEditable(value);
    valueEdit->setReadOnly(!obstacle.isEmpty());
    valueEdit->setToolTip(obstacle);
    valueEdit->showText(obstacle.isEmpty() ? toQString(value)
                                           : toQString(cutToShow(value)) + QStringLiteral(" …"));
}

void FieldRow::setMarked(bool mark) {
    if (marked != mark) {
        marked = mark;
        valueEdit->setAccessibleDescription(marked ? QStringLiteral("Befund zu diesem Feld") : QString());
        label->setForegroundRole(marked ? QPalette::WindowText : QPalette::PlaceholderText);
        update();
    }
}

void FieldRow::paintEvent(QPaintEvent*) {
    if (marked) {
        constexpr double tint = 0.25;
        constexpr int barWidthPx = 3;
        QPainter painter(this);
        const QColor accent = palette().color(QPalette::Highlight);
        painter.fillRect(rect(), withOpacity(accent, tint));
        painter.fillRect(0, 0, barWidthPx, height(), accent);
    }
}

}  // namespace quillon
