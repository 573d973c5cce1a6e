// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/ErrorAlert.h"

#include "Quillon/Views/Controls/Icons.h"

#include <QMessageBox>

#include <utility>

namespace quillon {

namespace {

/// A message can quote a name or value of a log, and a box of a megabyte of text does not come up.
constexpr qsizetype longestShown = 2000;

QString cut(const QString& text) {
    return text.size() <= longestShown ? text : text.left(longestShown) + QStringLiteral(" …");
}

}  // namespace

ErrorAlert::ErrorAlert(const QString& windowTitle, Message messageOfStore, std::function<void()> clearMessage,
                       QWidget& overWindow)
    : QObject(&overWindow),
      title(windowTitle),
      message(std::move(messageOfStore)),
      clear(std::move(clearMessage)),
      window(overWindow) {
    refresh();
}

void ErrorAlert::refresh() {
    const std::optional<QString> text = message();
    if (!text) {
        if (box && box->isVisible()) {
            box->close();
        }
        return;
    }
    if (!box) {
        box = new QMessageBox(QMessageBox::NoIcon, title, QString(), QMessageBox::NoButton, &window);
        box->setIconPixmap(severityIcon(tallyrig::ValidationSeverity::error)
                               .pixmap(QSize(48, 48), window.devicePixelRatioF()));
        box->setTextFormat(Qt::PlainText);
        box->setTextInteractionFlags(Qt::TextSelectableByMouse);
        box->addButton(QStringLiteral("OK"), QMessageBox::AcceptRole);
        connect(box, &QDialog::finished, this, [this] { clear(); });
    }
    box->setText(cut(*text));
    if (!box->isVisible()) {
        box->open();
    }
}

}  // namespace quillon
