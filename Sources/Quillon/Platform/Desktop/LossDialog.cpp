// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/Desktop/LossDialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace quillon {

LossDialog::LossDialog(const LossQuestion& question, QWidget* parent) : QDialog(parent) {
    setWindowTitle(QStringLiteral("Speichern"));
    auto* text = new QLabel(question.text, this);
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    auto* losses = new QPlainTextEdit(question.losses.join(QLatin1Char('\n')), this);
    losses->setReadOnly(true);
    losses->setTabChangesFocus(true);
    losses->setAccessibleName(QStringLiteral("Was nicht wiederkäme"));
    auto* buttons = new QDialogButtonBox(this);
    const auto add = [&](const QString& title, LossAnswer meaning) {
        auto* const button = buttons->addButton(title, QDialogButtonBox::ActionRole);
        connect(button, &QPushButton::clicked, this, [this, meaning] {
            given = meaning;
            accept();
        });
        return button;
    };
    add(QStringLiteral("&Trotzdem speichern"), LossAnswer::saveAnyway);
    if (!question.otherFormat.isEmpty()) {
        add(QStringLiteral("Als %1 &speichern…").arg(question.otherFormat), LossAnswer::otherFormat);
    }
    QPushButton* const cancel =
        buttons->addButton(QStringLiteral("&Abbrechen"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    // What loses nothing is done by a hasty key.
    cancel->setDefault(true);
    cancel->setFocus();

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(18, 18, 18, 18);
    layout->setSpacing(12);
    layout->addWidget(text);
    layout->addWidget(losses, 1);
    layout->addWidget(buttons);
    const int letter = fontMetrics().averageCharWidth();
    resize(90 * letter, 18 * fontMetrics().height());
}

}  // namespace quillon
