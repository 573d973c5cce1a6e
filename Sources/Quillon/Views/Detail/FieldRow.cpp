#include "Quillon/Views/Detail/FieldRow.h"

#include "Quillon/Catalogue/ADIFFieldCatalog.h"
#include "Quillon/Platform/Desktop/FontMeasurer.h"
#include "Quillon/Views/Controls/Icons.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Tallyrig/Text/Text.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QMenu>
#include <QToolButton>

#include <algorithm>
#include <limits>

namespace quillon {

LogTextField::LogTextField(QWidget* parent) : QLineEdit(parent) {
    // The limit of a line edit would cut off the end of a long remark.
    setMaxLength(std::numeric_limits<int>::max());
    // A log file that is dropped here is to be opened.
    setAcceptDrops(false);
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
    if (event->matches(QKeySequence::Undo) || event->matches(QKeySequence::Redo)) {
        event->ignore();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void LogTextField::contextMenuEvent(QContextMenuEvent* event) {
    QMenu* const menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const QString& own : {QStringLiteral("edit-undo"), QStringLiteral("edit-redo")}) {
        if (auto* const action = menu->findChild<QAction*>(own)) {
            menu->removeAction(action);
        }
    }
    menu->popup(event->globalPos());
}

FieldRow::FieldRow(QWidget* parent)
    : QWidget(parent),
      label(new ElidedLabel(Qt::ElideRight, this)),
      valueEdit(new LogTextField(this)),
      remove(new QToolButton(this)) {
    label->setFont(smallFont());
    label->setForegroundRole(QPalette::PlaceholderText);
    label->setBuddy(valueEdit);
    valueEdit->setPlaceholderText(QStringLiteral("Wert"));
    remove->setIcon(icon(QStringLiteral("list-remove")));
    remove->setAutoRaise(true);
    remove->setToolTip(QStringLiteral("Feld entfernen"));
    remove->setFocusPolicy(Qt::TabFocus);

    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setHorizontalSpacing(4);
    layout->setVerticalSpacing(2);
    layout->addWidget(label, 0, 0);
    layout->addWidget(valueEdit, 1, 0);
    layout->addWidget(remove, 1, 1);
    layout->setColumnStretch(0, 1);

    connect(valueEdit, &QLineEdit::textEdited, this, &FieldRow::valueEdited);
    connect(remove, &QToolButton::clicked, this, &FieldRow::removeClicked);
}

void FieldRow::show(std::string_view name, std::string_view value) {
    const QString newName = toQString(name);
    if (fieldName != newName) {
        fieldName = newName;
        const QString germanName = toQString(cutToShow(ADIFFieldCatalog::label(name)));
        label->setText(germanName);
        label->setToolTip(plainToolTip(toQString(cutToShow(name))));
        valueEdit->setAccessibleName(germanName);
        remove->setAccessibleName(QStringLiteral("Feld entfernen: ") + germanName);
    }
    const bool isTooLong = value.size() > longestEditableValue;
    valueEdit->setReadOnly(isTooLong);
    valueEdit->setToolTip(isTooLong ? tooLongMessage(value.size()) : QString());
    valueEdit->showText(isTooLong ? toQString(cutToShow(value)) + QStringLiteral(" …") : toQString(value));
}

}  // namespace quillon
