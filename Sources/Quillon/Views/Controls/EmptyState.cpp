// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/EmptyState.h"

#include "Quillon/Views/Controls/Icons.h"
#include "Quillon/Views/Controls/Labels.h"

#include <QAbstractButton>
#include <QLabel>
#include <QVBoxLayout>

namespace quillon {

EmptyState::EmptyState(const QIcon& picture, const QString& title, const QString& text, QWidget* parent)
    : QWidget(parent),
      column(new QVBoxLayout(this)),
      titleLabel(new QLabel(this)),
      textLabel(new QLabel(this)) {
    QFont bold = titleLabel->font();
    bold.setBold(true);
    titleLabel->setFont(bold);
    textLabel->setForegroundRole(QPalette::PlaceholderText);
    for (QLabel* label : {titleLabel, textLabel}) {
        label->setTextFormat(Qt::PlainText);
        label->setAlignment(Qt::AlignCenter);
        label->setWordWrap(true);
    }
    column->setSpacing(6);
    column->addStretch(2);
    column->addWidget(pictureWidget(picture, 32, this), 0, Qt::AlignHCenter);
    column->addWidget(titleLabel);
    column->addWidget(textLabel);
    column->addStretch(3);
    setTexts(title, text);
}

EmptyState::EmptyState(const QString& iconName, const QString& title, const QString& text, QWidget* parent)
    : EmptyState(icon(iconName), title, text, parent) {}

void EmptyState::setTexts(const QString& title, const QString& text) {
    titleLabel->setText(title);
    textLabel->setText(text);
}

void EmptyState::addButton(QAbstractButton* button) {
    constexpr int gapPx = 8;
    const int end = column->count() - 1;
    column->insertSpacing(end, gapPx);
    column->insertWidget(end + 1, button, 0, Qt::AlignHCenter);
}

}  // namespace quillon
