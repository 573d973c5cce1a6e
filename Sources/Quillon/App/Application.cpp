#include "Quillon/App/Application.h"

#include <QTimer>

#include <new>
#include <stdexcept>

namespace quillon {

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::bad_alloc&) {
    } catch (const std::length_error&) {
        // What exceeds the longest text has no room in memory either.
    }
    if (outOfMemory) {
        QTimer::singleShot(0, this, outOfMemory);
    }
    return false;
}

}  // namespace quillon
