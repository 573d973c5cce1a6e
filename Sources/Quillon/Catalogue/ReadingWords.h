// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ReadingReport.h"

#include <string>
#include <string_view>

namespace quillon {

/// How a person is told, in German, what a reader met in a file.
struct ReadingWords {
    /// "Fehler", "Warnung" or "Hinweis".
    static std::string_view label(tallyrig::ReadingSeverity severity);
    /// What was met, what that means for the log and, where there is something to do, what. One line, with a
    /// full stop.
    static std::string message(const tallyrig::ReadingNote& note);
    /// How many notes there are of each severity, such as "1 Fehler, 2 Warnungen, 1 Hinweis". Empty for an
    /// empty report.
    static std::string counts(const tallyrig::ReadingReport& report);
};

}  // namespace quillon
