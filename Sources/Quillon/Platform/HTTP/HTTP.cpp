// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/HTTP/HTTP.h"

namespace quillon {

bool isOnTheWeb(const QUrl& address) {
    return address.isValid() && !address.host().isEmpty() &&
           (address.scheme() == QLatin1String("https") || address.scheme() == QLatin1String("http"));
}

}  // namespace quillon
