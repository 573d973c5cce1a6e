#pragma once

#include <cstddef>
#include <string>

namespace tallyrig::benchmarks {

/// A log of `count` QSOs as a logging program writes it: ADI text, about 19 fields and 330 bytes to a QSO,
/// every tenth name with an umlaut. The same text on every run and machine.
std::string generatedLog(std::size_t count);

}  // namespace tallyrig::benchmarks
