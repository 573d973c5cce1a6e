// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ReadingReport.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tallyrig {

/// An ADI file with the lengths in its tags as a repair has them: what is read of its text is what the writer
/// of the file meant. Nothing but the digits of lengths is changed, and those of a value that ends at a tag
/// no better otherwise stay.
class RepairedADI {
  public:
    /// One pass, and one more over each value that is not ASCII.
    RepairedADI(std::string_view data, ReadingRepair repair);

    const std::string& text() const { return repaired; }

    /// A report on the text with the offsets of the file.
    ReadingReport withOffsetsOfFile(const ReadingReport& report) const;

  private:
    /// From `offset` of the text on, everything stands so many bytes further back or in front.
    struct Shift {
        std::size_t offset = 0;
        std::ptrdiff_t total = 0;
    };

    std::string repaired;
    std::vector<Shift> shifts;
};

}  // namespace tallyrig
