// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Text/Text.h"

#include <compare>
#include <string>
#include <string_view>

namespace tallyrig {

/// The smallest, as text, of the dates of some QSOs.
class EarliestDate {
  public:
    /// Takes in a value of `QSO_DATE`, which must outlive this. A blank one does not count.
    void add(std::string_view value) {
        const std::string_view date = text::trimmedOfBlanks(value);
        if (!date.empty() && (earliest.empty() || std::is_lt(text::compare(date, earliest)))) {
            earliest = date;
        }
    }
    /// Empty if there was none.
    std::string text() const { return std::string(earliest); }

  private:
    std::string_view earliest;
};

}  // namespace tallyrig
