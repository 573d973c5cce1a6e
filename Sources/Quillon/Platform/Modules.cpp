// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/Modules.h"

#include <QCoreApplication>
#include <QDebug>
#include <QPluginLoader>

namespace quillon {

namespace {

QString moduleFile(const QString& name) {
    return QCoreApplication::applicationDirPath() + QStringLiteral("/../lib/quillon/") + name;
}

}  // namespace

QObject* moduleRoot(const QString& name) {
    QPluginLoader loader(moduleFile(name));
    QObject* const root = loader.instance();
    if (root == nullptr) {
        qWarning().noquote() << moduleFile(name) + QStringLiteral(": ") + loader.errorString();
    }
    return root;
}

}  // namespace quillon
