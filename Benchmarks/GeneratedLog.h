// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tallyrig::benchmarks {

/// A log of `count` QSOs as a logging program writes it: ADI text, about 19 fields and 330 bytes to a QSO,
/// every tenth name with an umlaut. The same text on every run and machine.
std::string generatedLog(std::size_t count);

/// The log of one station in a contest of two days: `count` QSOs in the order of time, in CW and at times in
/// SSB, a few one after the other on one frequency, with serial numbers both ways. The same text on every run
/// and machine.
std::string generatedContestLog(std::size_t count);

/// The log of one station as it is scored: `count` QSOs of 12 fields, on the bands of short wave or, if it is
/// not empty, on `band` alone. The stations worked lie in ten countries and do not name theirs; a few are
/// worked again. The same text on every run and machine.
std::string generatedScoredLog(std::size_t count, std::string_view band);

}  // namespace tallyrig::benchmarks
