// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace tallyrig {

/// The prefix of a call as the WPX contests count it.
class WPXPrefix {
  public:
    /// In upper case: "DL1XYZ" gives "DL1", "W1XYZ/4" gives "W4", "DL/W1XYZ" gives "DL0", "RAEM" gives
    /// "RAEM0". Additions such as "/P" do not count. Empty if nothing of a call is there.
    static std::string prefix(std::string_view call);
    /// The same without a copy where the prefix stands in `call`: the result refers to `call` or to `buffer`.
    static std::string_view prefix(std::string_view call, std::string& buffer);
};

}  // namespace tallyrig
