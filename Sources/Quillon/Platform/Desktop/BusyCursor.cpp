// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/Desktop/BusyCursor.h"

#include <QCursor>
#include <QGuiApplication>
#include <QTimer>

namespace quillon {

void showBusyCursorUntilIdle() {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    QTimer::singleShot(0, qGuiApp, [] { QGuiApplication::restoreOverrideCursor(); });
}

}  // namespace quillon
