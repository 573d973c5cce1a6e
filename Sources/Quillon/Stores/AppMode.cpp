// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/AppMode.h"

namespace quillon {

QString storedValue(AppMode mode) {
    switch (mode) {
        case AppMode::check:
            return QStringLiteral("check");
        case AppMode::compare:
            return QStringLiteral("compare");
        case AppMode::stats:
            return QStringLiteral("stats");
        case AppMode::contest:
            return QStringLiteral("contest");
        case AppMode::outdoor:
            return QStringLiteral("outdoor");
    }
    return {};
}

}  // namespace quillon
