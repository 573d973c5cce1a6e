// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <cstddef>
#include <functional>

namespace tallyrig {

/// Work on many logs: on how many threads it runs, how far it is, and whether it is still wanted. Belongs to
/// one caller; while the work runs, any thread may ask how far it is and stop it.
class LogWork {
  public:
    /// On at most so many threads, or with 0 on as many as the machine has.
    explicit LogWork(std::size_t mostThreads = 0) : threads(mostThreads) {}

    /// The part that is done, from 0 to 1. Starts anew with each task that the work is used for.
    double progress() const;
    /// The same as numbers of steps; 0 of 0 before it has begun.
    std::size_t stepsDone() const { return done.load(std::memory_order_relaxed); }
    std::size_t steps() const { return total.load(std::memory_order_relaxed); }
    /// Asks the work to end soon; what it gives then is empty. For good.
    void cancel() { cancelled.store(true, std::memory_order_relaxed); }
    bool isCancelled() const { return cancelled.load(std::memory_order_relaxed); }

    // For those who do the work.

    /// Sets the progress to 0 of `steps`.
    void start(std::size_t steps);
    void addDone(std::size_t steps) { done.fetch_add(steps, std::memory_order_relaxed); }
    /// Calls `task` with each number below `count`, on several threads at once and in no order, and returns
    /// when all are done. What was cancelled is passed over.
    void forEach(std::size_t count, const std::function<void(std::size_t)>& task) const;

  private:
    std::size_t threads;
    std::atomic<std::size_t> total = 0;
    std::atomic<std::size_t> done = 0;
    std::atomic<bool> cancelled = false;
};

}  // namespace tallyrig
