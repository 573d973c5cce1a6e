// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Contest/ContestFields.h"
#include "Tallyrig/Contest/ContestRules.h"
#include "Tallyrig/Contest/RelationCondition.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace tallyrig {

/// What the rules say of the relation to the station worked. That depends on a few short fields, whose values
/// come again and again, so that the answers are kept and the conditions seldom asked. Refers to the rules.
class RelationTable {
  public:
    struct Verdict {
        /// Whether the QSO passes the test of the rules; it does if they have none.
        RelationAnswer validity = RelationAnswer::holds;
        /// The one that values it; null if there is none or points do not go by relation.
        const RelationRule* rule = nullptr;
    };

    /// Adds the fields that it reads.
    RelationTable(const ContestRules& rules, ContestFields& fields);

    /// What is said of the record that `fields` stands at. Good until the next call.
    const Verdict& read(ContestFields& fields);

  private:
    static constexpr std::size_t mostFields = 5;
    static constexpr std::size_t slotCount = 256;

    /// The values of the fields in words; the last one holds their sizes.
    using Key = std::array<std::uint64_t, mostFields + 1>;
    struct Slot {
        Key key{};
        bool isUsed = false;
        Verdict verdict;
    };

    Verdict verdictOf(ContestFields& fields) const;

    const ContestRules& rules;
    std::size_t dxccField = 0;
    std::size_t continentField = 0;
    std::size_t cqZoneField = 0;
    std::size_t ituZoneField = 0;
    std::size_t callField = 0;
    std::vector<std::size_t> readFields;  ///< Those that any rule asks for; none if nothing goes by relation.
    std::vector<Slot> slots;              ///< By the hash of the key; the last one met there.
    Verdict longVerdict;                  ///< Of a record whose values are too long to be kept.
};

}  // namespace tallyrig
