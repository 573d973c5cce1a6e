#include "Quillon/Views/Controls/EmptyState.h"

#include "Quillon/Views/Controls/Icons.h"
#include "Quillon/Views/Controls/Labels.h"

#include <QLabel>
#include <QVBoxLayout>

namespace quillon {

EmptyState::EmptyState(const QIcon& picture, const QString& title, const QString& text, QWidget* parent)
    : QWidget(parent), titleLabel(new QLabel(this)), textLabel(new QLabel(this)) {
    QFont bold = titleLabel->font();
    bold.setBold(true);
    titleLabel->setFont(bold);
    textLabel->setForegroundRole(QPalette::PlaceholderText);
    for (QLabel* label : {titleLabel, textLabel}) {
        label->setTextFormat(Qt::PlainText);
        label->setAlignment(Qt::AlignCenter);
        label->setWordWrap(true);
    }
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(6);
    layout->addStretch(2);
    layout->addWidget(pictureWidget(picture, 32, this), 0, Qt::AlignHCenter);
    layout->addWidget(titleLabel);
    layout->addWidget(textLabel);
    layout->addStretch(3);
    setTexts(title, text);
}

EmptyState::EmptyState(const QString& iconName, const QString& title, const QString& text, QWidget* parent)
    : EmptyState(icon(iconName), title, text, parent) {}

void EmptyState::setTexts(const QString& title, const QString& text) {
    titleLabel->setText(title);
    textLabel->setText(text);
}

}  // namespace quillon
