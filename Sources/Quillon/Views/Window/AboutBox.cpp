// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Window/AboutBox.h"

#include "Quillon/Platform/AppInfo.h"
#include "Quillon/Views/Controls/Icons.h"

#include <QMessageBox>

namespace quillon {

void showAboutBox(QWidget& window) {
    auto* box = new QMessageBox(&window);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowTitle(QStringLiteral("Über ") + appName());
    box->setIconPixmap(applicationIcon().pixmap(QSize(64, 64), window.devicePixelRatioF()));
    box->setText(QStringLiteral("<b>") + appName() + QLatin1Char(' ') + appVersion() +
                 QStringLiteral(
                     "</b><p>Logbücher des Amateurfunks ansehen, bearbeiten,<br>prüfen und auswerten.</p>"));
    box->addButton(QStringLiteral("OK"), QMessageBox::AcceptRole);
    box->open();
}

}  // namespace quillon
