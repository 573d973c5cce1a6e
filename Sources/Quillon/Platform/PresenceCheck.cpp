// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/PresenceCheck.h"

#include <sys/stat.h>

#include <mutex>
#include <string>
#include <system_error>
#include <thread>

namespace quillon {

struct PresenceCheck::Channel {
    std::mutex mutex;
    PresenceCheck* receiver = nullptr;  ///< Null when nobody waits any more.
};

PresenceCheck::PresenceCheck(QObject* parent) : QObject(parent), channel(std::make_shared<Channel>()) {
    channel->receiver = this;
}

PresenceCheck::~PresenceCheck() {
    const std::lock_guard lock(channel->mutex);
    channel->receiver = nullptr;
}

void PresenceCheck::look(const QString& path) {
    if (underWay.contains(path)) {
        return;
    }
    try {
        // A thread for each: one file that cannot be reached must not keep the others waiting. Nobody can
        // join a thread that waits for a server.
        std::thread([shared = channel, path] {
            struct stat status = {};
            const bool isThere = ::stat(path.toStdString().c_str(), &status) == 0 && S_ISREG(status.st_mode);
            const std::lock_guard lock(shared->mutex);
            if (PresenceCheck* const receiver = shared->receiver) {
                QMetaObject::invokeMethod(
                    receiver, [receiver, path, isThere] { receiver->take(path, isThere); },
                    Qt::QueuedConnection);
            }
        }).detach();
        underWay.insert(path);
    } catch (const std::system_error&) {
        // Nothing is known of the file then.
    }
}

void PresenceCheck::take(const QString& path, bool isThere) {
    underWay.remove(path);
    emit looked(path, isThere);
}

}  // namespace quillon
