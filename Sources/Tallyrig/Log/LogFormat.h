// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace tallyrig {

/// The interchange formats of logs.
enum class LogFormat { adif, adx, cabrillo, edi };

/// Finds the format of a file from its content alone; its name plays no part.
struct LogFormatDetector {
    /// Looks at the first 2048 bytes at most of a file, which has no byte order mark at its head. Anything
    /// unknown is `adif`.
    static LogFormat detect(std::string_view data);
};

}  // namespace tallyrig
