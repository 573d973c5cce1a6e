// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/Desktop/DesktopBrowser.h"

#include <QDesktopServices>

namespace quillon {

bool DesktopBrowser::open(const QUrl& address) {
    return QDesktopServices::openUrl(address);
}

}  // namespace quillon
