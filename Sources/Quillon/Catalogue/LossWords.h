// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Formats/WritingReport.h"
#include "Tallyrig/Log/ADIFDocument.h"

#include <cstddef>
#include <string>
#include <vector>

namespace quillon {

/// How a person is told, in German, what a log would lose if it were written. Names and values are shown so
/// that every character is seen, and long ones are cut.
struct LossWords {
    /// One sentence with the numbers, such as "Nicht alles käme beim Lesen wieder: 3 Angaben in 2 QSOs.".
    static std::string summary(const tallyrig::WritingReport& report);
    /// A line for each of the first `most` losses, and one that has the number of the rest, if there are
    /// more. `document` is the log that the report is about.
    static std::vector<std::string> lines(const tallyrig::WritingReport& report,
                                          const tallyrig::ADIFDocument& document, std::size_t most);
};

}  // namespace quillon
