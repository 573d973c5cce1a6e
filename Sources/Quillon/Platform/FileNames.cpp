#include "Quillon/Platform/FileNames.h"

#include <QDir>

namespace quillon {

namespace {

QString nameOf(const QString& path) {
    return path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
}

}  // namespace

QString absolutePath(const QString& path) {
    if (path.isEmpty()) {
        return path;
    }
    return QDir::cleanPath(path.startsWith(QLatin1Char('/')) ? path
                                                             : QDir::currentPath() + QLatin1Char('/') + path);
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
