// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/CrossCheck/LogWork.h"

#include <oneapi/tbb/info.h>
#include <oneapi/tbb/parallel_for.h>
#include <oneapi/tbb/task_arena.h>

#include <algorithm>

namespace tallyrig {

double LogWork::progress() const {
    const std::size_t all = total.load(std::memory_order_relaxed);
    return all == 0 ? 0
                    : static_cast<double>(done.load(std::memory_order_relaxed)) / static_cast<double>(all);
}

void LogWork::start(std::size_t steps) {
    done.store(0, std::memory_order_relaxed);
    total.store(steps, std::memory_order_relaxed);
}

void LogWork::forEach(std::size_t count, const std::function<void(std::size_t)>& task) const {
    const auto taskIfWanted = [&](std::size_t number) {
        if (!isCancelled()) {
            task(number);
        }
    };
    const auto ofMachine = static_cast<std::size_t>(tbb::info::default_concurrency());
    tbb::task_arena arena(static_cast<int>(threads == 0 ? ofMachine : std::min(threads, ofMachine)));
    arena.execute([&] { tbb::parallel_for(std::size_t{0}, count, taskIfWanted); });
}

}  // namespace tallyrig
