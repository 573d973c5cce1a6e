// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <benchmark/benchmark.h>

#include <cstddef>
#include <functional>
#include <string>

namespace tallyrig::benchmarks {

/// The log of `count` QSOs, made once for the run.
const std::string& logOf(std::size_t count);

double secondsOf(const std::function<void()>& work);

/// Looks at every "<" of `text`: the least that a reader of tags can do.
void memchrPass(const std::string& text);

/// Runs `work` and `yardstick` in turns for as long as `state` wants and reports as `counter` how many times
/// the best time of the yardstick the best time of the work is.
void inTurns(benchmark::State& state, const char* counter, const std::function<void()>& work,
             const std::function<void()>& yardstick);

/// `inTurns` with the memchr pass over `text`, as "passes", and the time for each of `count` QSOs.
void besideThePass(benchmark::State& state, const std::string& text, std::size_t count,
                   const std::function<void()>& work);

}  // namespace tallyrig::benchmarks
