// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/RecentFiles.h"

#include "Quillon/Platform/FileNames.h"
#include "Quillon/Platform/Settings.h"
#include "Quillon/Platform/StateFolder.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QStandardPaths>

#include <algorithm>

namespace quillon {

namespace {

const QString pathsKey = QStringLiteral("recentFiles");

/// The last `count` folders on the way to the file.
QString endOfFolder(const QString& path, qsizetype count) {
    const QStringList folders = path.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    const qsizetype first = std::max<qsizetype>(folders.size() - 1 - count, 0);
    return folders.mid(first, folders.size() - 1 - first).join(QLatin1Char('/'));
}

/// How many folders are to be named so that no other of `namesakes` has the same end as `path`.
qsizetype foldersNeeded(const QString& path, const QStringList& namesakes) {
    const qsizetype most = path.count(QLatin1Char('/'));
    for (qsizetype count = 1; count < most; ++count) {
        const QString end = endOfFolder(path, count);
        if (std::ranges::count(namesakes, end,
                               [count](const QString& other) { return endOfFolder(other, count); }) == 1) {
            return count;
        }
    }
    return most;
}

}  // namespace

QStringList RecentFiles::paths() const {
    settings.refresh();
    QStringList paths = settings.strings(pathsKey);
    paths.removeIf([](const QString& path) { return !path.startsWith(QLatin1Char('/')); });
    paths.removeDuplicates();
    return paths.mid(0, mostFiles);
}

void RecentFiles::add(const QString& path) {
    // One file by one path, however the user came to its folder.
    const QString file = QDir(folderOf(path)).filePath(QFileInfo(path).fileName());
    QStringList files = paths();
    if (!files.isEmpty() && files.first() == file) {
        return;
    }
    files.removeAll(file);
    files.prepend(file);
    settings.setValue(pathsKey, files.mid(0, mostFiles));
}

void RecentFiles::clear() {
    settings.setValue(pathsKey, QStringList());
}

QStringList foldersOfPassingFiles() {
    QStringList folders;
    for (const QString& folder :
         {QDir::tempPath(), QStringLiteral("/tmp"), QStringLiteral("/var/tmp"),
          QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation), stateFolder()}) {
        if (const QString path = QFileInfo(folder).canonicalFilePath(); !path.isEmpty()) {
            folders.append(path);
        }
    }
    return folders;
}

bool liesIn(const QStringList& folders, const QString& path) {
    const QString folder = folderOf(path) + QLatin1Char('/');
    return std::ranges::any_of(
        folders, [&folder](const QString& passing) { return folder.startsWith(passing + QLatin1Char('/')); });
}

QStringList distinctNames(const QStringList& paths) {
    QHash<QString, QStringList> byName;
    for (const QString& path : paths) {
        byName[QFileInfo(path).fileName()].append(path);
    }
    QStringList names;
    for (const QString& path : paths) {
        const QString name = QFileInfo(path).fileName();
        const QStringList& namesakes = byName[name];
        const QString folder =
            namesakes.size() > 1 ? endOfFolder(path, foldersNeeded(path, namesakes)) : QString();
        names.append(folder.isEmpty() ? name : name + QStringLiteral(" – ") + folder);
    }
    return names;
}

}  // namespace quillon
