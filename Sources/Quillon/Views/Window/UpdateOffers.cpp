// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Window/UpdateOffers.h"

#include "Quillon/Updates/UpdateInstaller.h"
#include "Quillon/Updates/UpdateManager.h"
#include "Quillon/Views/Controls/Icons.h"
#include "Quillon/Views/Update/UpdateAlertView.h"

#include <QMessageBox>

#include <utility>

namespace quillon {

UpdateOffers::UpdateOffers(UpdateManager& updateManager, MakeInstaller installerForOffer, QWidget& overWindow)
    : QObject(&overWindow),
      manager(updateManager),
      makeInstaller(std::move(installerForOffer)),
      window(overWindow) {
    connect(&manager, &UpdateManager::updateInfoChanged, this, &UpdateOffers::showOffer);
    connect(&manager, &UpdateManager::answerChanged, this, &UpdateOffers::showAnswer);
    connect(&manager, &UpdateManager::isCheckingManuallyChanged, this, [this] {
        emit noticed(manager.isCheckingManually() ? QStringLiteral("Suche nach Updates …") : QString());
    });
    showOffer();
    showAnswer();
}

void UpdateOffers::check() {
    manager.checkManually();
}

void UpdateOffers::showOffer() {
    if (dialog && !dialog->isClosable()) {
        return;
    }
    if (dialog) {
        disconnect(dialog, nullptr, this, nullptr);
        dialog->close();
        dialog.clear();
    }
    if (!manager.updateInfo()) {
        return;
    }
    dialog = new UpdateAlertView(*manager.updateInfo(), manager, makeInstaller(), &window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::finished, this, [this] {
        dialog.clear();
        manager.postpone();
    });
    dialog->open();
}

void UpdateOffers::showAnswer() {
    const auto& answer = manager.answer();
    if (answerBox) {
        answerBox->disconnect(this);
        answerBox->close();
        answerBox.clear();
    }
    if (!answer) {
        return;
    }
    // Over the offer, where it is about that.
    QWidget& below = dialog ? *dialog : window;
    // The title stands in the box itself, for a box is as wide as its text, and desktops cut the title above
    // a small one or show none at all.
    answerBox =
        new QMessageBox(QMessageBox::NoIcon, QStringLiteral("Software-Update"),
                        answer->title + QStringLiteral("\n\n") + answer->text, QMessageBox::NoButton, &below);
    answerBox->setAttribute(Qt::WA_DeleteOnClose);
    answerBox->setIconPixmap(applicationIcon().pixmap(QSize(48, 48), window.devicePixelRatioF()));
    answerBox->setTextFormat(Qt::PlainText);
    answerBox->setTextInteractionFlags(Qt::TextSelectableByMouse);
    answerBox->addButton(QStringLiteral("OK"), QMessageBox::AcceptRole);
    connect(answerBox, &QDialog::finished, this, [this] {
        answerBox.clear();
        manager.clearAnswer();
    });
    answerBox->open();
}

}  // namespace quillon
