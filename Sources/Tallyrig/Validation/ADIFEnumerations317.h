// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string_view>

namespace tallyrig {

/// An enumeration of ADIF 3.1.7 as it is written down.
struct EnumerationValues {
    std::string_view key;
    std::span<const std::string_view> values;
};

/// All enumerations but `BAND`, whose values are the names of the band table.
std::span<const EnumerationValues> enumerationValues317();

}  // namespace tallyrig
