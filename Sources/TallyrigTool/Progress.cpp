// SPDX-License-Identifier: GPL-3.0-or-later
#include "TallyrigTool/Progress.h"

#include "Quillon/Platform/Files/Descriptor.h"

#include <unistd.h>

#include <chrono>
#include <utility>

namespace tallyrig::tool {

Progress::Progress(std::function<std::string()> words) : text(std::move(words)) {
    if (::isatty(STDERR_FILENO) == 1) {
        reporter = std::thread([this] { report(); });
    }
}

Progress::~Progress() {
    if (!reporter.joinable()) {
        return;
    }
    {
        const std::lock_guard lock(mutex);
        isOver = true;
    }
    ended.notify_one();
    reporter.join();
}

void Progress::report() {
    constexpr auto interval = std::chrono::milliseconds(200);
    std::unique_lock lock(mutex);
    // What is done at once needs no word.
    while (!ended.wait_for(lock, interval, [this] { return isOver; })) {
        quillon::writeAll(STDERR_FILENO, "\r" + text() + "\033[K");
    }
    quillon::writeAll(STDERR_FILENO, "\r\033[K");
}

}  // namespace tallyrig::tool
