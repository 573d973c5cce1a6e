// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Text/KeyNumbers.h"

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace tallyrig {

/// The records of a log by the references that they name. References are the same where their texts are
/// equal; they stand in order of first appearance, in the spelling that came first.
class ReferenceGroups {
  public:
    /// The record at `recordIndex` names `reference`, which must outlive this. Indices ascend.
    void add(std::size_t recordIndex, std::string_view reference);
    /// Ends the adding. What follows may be asked then.
    void finish();

    std::size_t size() const { return references.size(); }
    std::string_view reference(std::size_t group) const { return references[group]; }
    /// Ascending; a record that names the reference twice is there twice.
    std::span<const std::size_t> records(std::size_t group) const;

  private:
    struct Naming {
        std::size_t group;
        std::size_t record;
    };

    KeyNumbers numbers;
    std::vector<std::string_view> references;
    std::vector<Naming> namings;  ///< Until the adding ends.
    std::vector<std::size_t> recordsByGroup;
    std::vector<std::size_t> begins;  ///< Of each group among them; last, their end.
};

}  // namespace tallyrig
