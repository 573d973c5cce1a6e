// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/StateFolder.h"

#include <QDir>
#include <QFile>

namespace quillon {

QString stateFolder() {
    const QString given = QFile::decodeName(qgetenv("XDG_STATE_HOME"));
    // What is not given from the root on does not count.
    const QString base =
        given.startsWith(QLatin1Char('/')) ? given : QDir::homePath() + QStringLiteral("/.local/state");
    return base + QStringLiteral("/quillon");
}

}  // namespace quillon
