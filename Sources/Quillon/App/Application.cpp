// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/App/Application.h"

#include <QEvent>
#include <QTimer>

#include <new>
#include <stdexcept>
#include <utility>

namespace quillon {

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::bad_alloc&) {
    } catch (const std::length_error&) {
        // What exceeds the longest text has no room in memory either.
    }
    // What cannot be painted is not there, and is tried again with each movement: one word about it must do.
    const bool isPainting = event->type() == QEvent::Paint || event->type() == QEvent::UpdateRequest;
    if (outOfMemory && !(isPainting && std::exchange(hasToldOfPainting, true))) {
        QTimer::singleShot(0, this, outOfMemory);
    }
    return false;
}

}  // namespace quillon
