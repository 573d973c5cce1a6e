// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Contest/ContestFields.h"
#include "Tallyrig/Contest/ContestMultiplier.h"
#include "Tallyrig/Contest/SteadyField.h"
#include "Tallyrig/Text/KeyNumbers.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace tallyrig {

/// What a QSO shows of one multiplier. Refers to the multiplier.
class MultiplierKey {
  public:
    /// Adds the fields that it reads.
    MultiplierKey(const ContestMultiplier& multiplier, ContestFields& fields);

    /// Adds the key of the record that `fields` stands at to `seen`, the same at each call, and says whether
    /// it is the first; false if the record has none.
    bool addNew(ContestFields& fields, const SteadyField& band, const SteadyField& mode, KeyNumbers& seen);

  private:
    /// A short value that gives nothing new any more. The band and the mode are those of the QSO where they
    /// make a difference.
    struct Settled {
        std::uint64_t word = 0;
        std::size_t size = std::numeric_limits<std::size_t>::max();
        std::size_t band = 0;
        std::size_t mode = 0;

        friend bool operator==(const Settled&, const Settled&) = default;
    };
    /// A value before it is tested, and whether the first field alone tells it.
    struct Raw {
        std::string_view value{};
        bool isOfFirst = false;
    };

    bool addCounted(std::string_view value, const SteadyField& band, const SteadyField& mode,
                    KeyNumbers& seen) const;
    Raw rawValue(ContestFields& fields);
    Raw allowedValue(ContestFields& fields) const;
    Raw firstValue(ContestFields& fields) const;
    std::string_view callArea(ContestFields& fields);
    std::string_view countedOf(std::string_view raw) const;
    bool counts(std::string_view value) const;

    const ContestMultiplier& multiplier;
    std::size_t call;
    std::size_t dxcc = 0;
    std::vector<std::size_t> candidates;  ///< The field and its fallbacks.
    std::size_t firstField = 0;
    /// Whether values are known as the first field has them, or else as they count: calls and locators are
    /// many, and prefixes few.
    bool isKnownByField;
    /// By a hash, the last one met there: mostly a value comes again soon, and no key needs to be made of it.
    std::array<Settled, 256> settled{};
    std::string prefix;  ///< Of the call, where it does not stand in it.
    std::string held;    ///< A value that stands in no field.
};

}  // namespace tallyrig
