// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Window/HelpDesk.h"

#include "Quillon/Stores/ContestStore.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Help/HandbookDocument.h"
#include "Quillon/Views/Help/HandbookWindow.h"
#include "Quillon/Views/Window/AboutBox.h"
#include "Quillon/Views/Window/ContentView.h"
#include "Quillon/Views/Window/ShortcutList.h"

#include <QApplication>
#include <QDesktopServices>
#include <QUrl>
#include <QWhatsThis>

namespace quillon {

HelpDesk::HelpDesk(const AppStores& appStores, Settings& userSettings, ContentView& contentView)
    : QObject(&contentView), stores(appStores), settings(userSettings), window(contentView) {}

HelpDesk::~HelpDesk() = default;

void HelpDesk::showHandbook() {
    showPart(chapter());
}

void HelpDesk::showShortcuts() {
    showPart(QStringLiteral("tastenkürzel"));
}

void HelpDesk::showPart(const QString& anchor) {
    if (handbook == nullptr) {
        handbook = std::make_unique<HandbookWindow>(handbookText() + shortcutChapter(), settings);
        connect(handbook.get(), &HandbookWindow::addressWanted, this, &QDesktopServices::openUrl);
    }
    handbook->showPart(anchor);
}

QString HelpDesk::chapter() const {
    switch (stores.log.mode()) {
        case AppMode::check:
            return stores.log.showCheckResults()             ? QStringLiteral("prüfen")
                   : stores.log.document().records().empty() ? QStringLiteral("öffnen")
                                                             : QStringLiteral("bearbeiten");
        case AppMode::compare:
            return QStringLiteral("zwei-logs-vergleichen");
        case AppMode::stats:
            return QStringLiteral("statistik");
        case AppMode::contest:
            return stores.contest.pane() == ContestStore::Pane::crossCheck
                       ? QStringLiteral("viele-logs-gegeneinander-prüfen")
                       : QStringLiteral("contest-werten");
        case AppMode::outdoor:
            return QStringLiteral("outdoor-programme");
    }
    return {};
}

void HelpDesk::explain() {
    QWidget* field =
        QApplication::keyboardModifiers().testFlag(Qt::ShiftModifier) ? window.focusWidget() : nullptr;
    while (field != nullptr && field->whatsThis().isEmpty()) {
        field = field->parentWidget();
    }
    if (field == nullptr) {
        QWhatsThis::enterWhatsThisMode();
        return;
    }
    QWhatsThis::showText(field->mapToGlobal(field->rect().bottomLeft()), field->whatsThis(), field);
}

void HelpDesk::showAbout() {
    auto* const box = new AboutBox(&window);
    box->setAttribute(Qt::WA_DeleteOnClose);
    connect(box, &AboutBox::handbookWanted, this, [this] { showPart({}); });
    box->open();
}

}  // namespace quillon
