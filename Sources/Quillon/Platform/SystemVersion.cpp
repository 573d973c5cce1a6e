// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/SystemVersion.h"

#include <QSysInfo>
#include <QVersionNumber>

namespace quillon {

QString systemVersion() {
    return systemVersionOf(QSysInfo::kernelVersion());
}

QString systemVersionOf(const QString& release) {
    const QVersionNumber version = QVersionNumber::fromString(release);
    return QStringLiteral("%1.%2.%3")
        .arg(version.majorVersion())
        .arg(version.minorVersion())
        .arg(version.microVersion());
}

}  // namespace quillon
