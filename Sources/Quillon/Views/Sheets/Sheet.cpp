// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Sheets/Sheet.h"

#include "Quillon/Views/Controls/Labels.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace quillon {

Sheet::Sheet(const QString& title, const QString& actionText, QWidget* parent)
    : QDialog(parent), body(new QVBoxLayout), remark(new QLabel(this)) {
    setWindowTitle(title);
    // Where the desktop has a button for it beside the one that closes.
    setWindowFlag(Qt::WindowContextHelpButtonHint);
    remark->setTextFormat(Qt::PlainText);
    remark->setForegroundRole(QPalette::PlaceholderText);
    auto* buttons = new QDialogButtonBox(this);
    actionButton = buttons->addButton(actionText, QDialogButtonBox::AcceptRole);
    actionButton->setDefault(true);
    buttons->addButton(QStringLiteral("Abbrechen"), QDialogButtonBox::RejectRole);
    auto* foot = new QHBoxLayout;
    foot->addWidget(remark);
    foot->addStretch(1);
    foot->addWidget(buttons);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(18, 18, 18, 18);
    layout->setSpacing(12);
    body->setSpacing(10);
    layout->addWidget(titleLabel(title, this));
    layout->addLayout(body, 1);
    layout->addLayout(foot);

    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] {
        act();
        accept();
    });
}

void Sheet::setRemark(const QString& text) {
    remark->setText(text);
}

void Sheet::setComplete(bool isComplete) {
    actionButton->setEnabled(isComplete);
}

}  // namespace quillon
