// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/Desktop/DesktopRecentFiles.h"

#include "Quillon/Platform/RecentlyUsedList.h"

#include <QProcess>
#include <QStandardPaths>

namespace quillon {

namespace {

/// Where the desktop keeps whether files are remembered; empty for one that has no such place.
QString privacySchema() {
    const QByteArrayList desktops = qgetenv("XDG_CURRENT_DESKTOP").split(':');
    if (desktops.contains("X-Cinnamon")) {
        return QStringLiteral("org.cinnamon.desktop.privacy");
    }
    for (const char* const desktop : {"GNOME", "Unity", "Budgie", "Pantheon"}) {
        if (desktops.contains(desktop)) {
            return QStringLiteral("org.gnome.desktop.privacy");
        }
    }
    return {};
}

void noteAtOnce(const QString& path) {
    if (desktopRemembersFiles(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation))) {
        RecentlyUsedList(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation))
            .note(path, QDateTime::currentDateTimeUtc());
    }
}

}  // namespace

void DesktopRecentFiles::note(const QString& path) {
    const QString schema = privacySchema();
    const QString tool =
        schema.isEmpty() ? QString() : QStandardPaths::findExecutable(QStringLiteral("gsettings"));
    if (tool.isEmpty()) {
        noteAtOnce(path);
        return;
    }
    auto* question = new QProcess(this);
    connect(question, &QProcess::finished, this, [question, path] {
        if (!question->readAllStandardOutput().startsWith("false")) {
            noteAtOnce(path);
        }
        question->deleteLater();
    });
    question->start(tool, {QStringLiteral("get"), schema, QStringLiteral("remember-recent-files")});
}

}  // namespace quillon
