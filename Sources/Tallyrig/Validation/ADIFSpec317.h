// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Validation/SpecTable.h"

#include <optional>
#include <string_view>

namespace tallyrig {

/// What ADIF says of one field.
struct FieldDef {
    std::string_view dataType;  ///< The name of the data type, such as "MultilineString".
    std::optional<std::string_view> enumKey = std::nullopt;  ///< The key of its values in the enumerations.
};

/// An amateur band; both edges belong to it.
struct BandRange {
    double lower = 0;  ///< MHz.
    double upper = 0;  ///< MHz.

    bool contains(double frequencyMHz) const { return lower <= frequencyMHz && frequencyMHz <= upper; }
};

/// The constant tables of ADIF 3.1.7. All names, keys and values are in upper case and look-ups are exact, so
/// callers upper-case first. Each table is built when it is first asked for, safely from any thread, and
/// never changes.
struct ADIFSpec {
    static constexpr std::string_view version = "3.1.7";

    /// The fields of header and QSO, in the order of their names. `APP_` and `USERDEF` fields are no rows.
    static const SpecTable<FieldDef>& fields();
    /// The values that enumerations admit, import-only ones included.
    static const SpecTable<SpecSet>& enumerations();
    /// The bands in the order of their lower edges. Between bands there are gaps; no two overlap.
    static const SpecTable<BandRange>& bandFrequencies();
};

}  // namespace tallyrig
