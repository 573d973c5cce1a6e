#pragma once

#include "Tallyrig/CrossCheck/LogWork.h"

#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

namespace tallyrig::tool {

/// Says on a terminal at standard error how far the work is, for as long as this lives; elsewhere nothing.
class Progress {
  public:
    /// `what` is done, in German; the work outlives this.
    Progress(const LogWork& work, std::string what);
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    ~Progress();

  private:
    void report();

    const LogWork& work;
    std::string what;
    std::mutex mutex;
    std::condition_variable ended;
    bool isOver = false;
    std::thread reporter;
};

}  // namespace tallyrig::tool
