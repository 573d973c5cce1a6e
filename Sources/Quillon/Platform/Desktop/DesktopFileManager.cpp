// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/Desktop/DesktopFileManager.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDesktopServices>
#include <QUrl>

namespace quillon {

namespace {

/// The message by which the desktops of freedesktop.org are asked to show files.
QDBusMessage showingItems(const QStringList& paths) {
    QStringList addresses;
    for (const QString& path : paths) {
        addresses.append(QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded));
    }
    QDBusMessage message = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    message.setArguments({addresses, QString()});
    return message;
}

}  // namespace

void DesktopFileManager::show(const QString& folder) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(folder));
}

void DesktopFileManager::select(const QStringList& paths) {
    constexpr qsizetype mostSelected = 200;
    const QString folder = paths.first().left(paths.first().lastIndexOf(QLatin1Char('/')) + 1);
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (paths.size() > mostSelected || !bus.isConnected()) {
        show(folder);
        return;
    }
    auto* const answer = new QDBusPendingCallWatcher(bus.asyncCall(showingItems(paths)), qApp);
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, qApp, [folder, answer] {
        if (answer->isError()) {
            QDesktopServices::openUrl(QUrl::fromLocalFile(folder));
        }
        answer->deleteLater();
    });
}

}  // namespace quillon
