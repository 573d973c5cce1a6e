// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>
#include <thread>

namespace tallyrig::tool {

/// Says on a terminal at standard error how far the work is, for as long as this lives; elsewhere nothing.
class Progress {
  public:
    /// `words` says it in German; called on another thread.
    explicit Progress(std::function<std::string()> words);
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    ~Progress();

  private:
    void report();

    std::function<std::string()> text;
    std::mutex mutex;
    std::condition_variable ended;
    bool isOver = false;
    std::thread reporter;
};

}  // namespace tallyrig::tool
