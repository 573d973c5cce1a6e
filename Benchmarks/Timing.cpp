// SPDX-License-Identifier: GPL-3.0-or-later
#include "Timing.h"

#include "GeneratedLog.h"

#include <algorithm>
#include <chrono>
#include <cstring>
#include <limits>
#include <map>

namespace tallyrig::benchmarks {

const std::string& logOf(std::size_t count) {
    static std::map<std::size_t, std::string> logs;
    std::string& text = logs[count];
    if (text.empty()) {
        text = generatedLog(count);
    }
    return text;
}

double secondsOf(const std::function<void()>& work) {
    using Clock = std::chrono::steady_clock;
    const auto begin = Clock::now();
    work();
    return std::chrono::duration<double>(Clock::now() - begin).count();
}

void memchrPass(const std::string& text) {
    std::size_t found = 0;
    const char* at = text.data();
    const char* const end = at + text.size();
    while ((at = static_cast<const char*>(std::memchr(at, '<', static_cast<std::size_t>(end - at)))) !=
           nullptr) {
        ++found;
        ++at;
    }
    benchmark::DoNotOptimize(found);
}

void inTurns(benchmark::State& state, const char* counter, const std::function<void()>& work,
             const std::function<void()>& yardstick) {
    double bestWork = std::numeric_limits<double>::infinity();
    double bestYardstick = std::numeric_limits<double>::infinity();
    for (auto _ : state) {
        bestYardstick = std::min(bestYardstick, secondsOf(yardstick));
        const double seconds = secondsOf(work);
        bestWork = std::min(bestWork, seconds);
        state.SetIterationTime(seconds);
    }
    state.counters[counter] = bestWork / bestYardstick;
    state.counters["bestMs"] = bestWork * 1e3;
}

void besideThePass(benchmark::State& state, const std::string& text, std::size_t count,
                   const std::function<void()>& work) {
    inTurns(state, "passes", work, [&] { memchrPass(text); });
    state.counters["nsPerQSO"] = state.counters["bestMs"] * 1e6 / static_cast<double>(count);
    state.counters["megabytes"] = static_cast<double>(text.size()) / 1e6;
}

}  // namespace tallyrig::benchmarks
