// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tallyrig::benchmarks {

/// The Cabrillo logs of a contest of two days on five bands, in CW and SSB, with about `qsoCount` QSOs in
/// `logCount` logs: a few large ones and many small.
///
/// The stations really work each other, no two of them twice on a band as far as that goes. Of their QSOs
/// about 11 % are with stations that sent no log; in about 1.5 % the call is mistyped, in 1 % the number, 1 %
/// are not in the other log, 0.5 % are with a call that nobody else has, and every fortieth clock is wrong.
/// The same texts on every run and machine.
std::vector<std::string> generatedContest(std::size_t logCount, std::size_t qsoCount);

}  // namespace tallyrig::benchmarks
