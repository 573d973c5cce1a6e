// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/FileNames.h"

#include <QDir>
#include <QFileInfo>

namespace quillon {

namespace {

QString nameOf(const QString& path) {
    return path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
}

/// Where relative paths begin; what the system itself takes for it if the folder was deleted.
QString workingFolder() {
    const QString folder = QDir::currentPath();
    return folder.isEmpty() ? QStringLiteral(".") : folder;
}

}  // namespace

QString absolutePath(const QString& path) {
    return path.isEmpty() || path.startsWith(QLatin1Char('/')) ? path
                                                               : workingFolder() + QLatin1Char('/') + path;
}

QString folderOf(const QString& path) {
    return QFileInfo(path.left(path.lastIndexOf(QLatin1Char('/')) + 1)).canonicalFilePath();
}

QString extensionOf(const QString& path) {
    const QString name = nameOf(path);
    const qsizetype stop = name.lastIndexOf(QLatin1Char('.'));
    const QString extension = stop > 0 ? name.mid(stop + 1) : QString();
    return extension.contains(QLatin1Char(' ')) ? QString() : extension;
}

QString nameWithoutExtension(const QString& path) {
    const QString name = nameOf(path);
    const qsizetype length = extensionOf(path).size();
    return length == 0 ? name : name.chopped(length + 1);
}

}  // namespace quillon
