// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Analysis/ADIFComparison.h"
#include "Tallyrig/Log/ADIFDocument.h"
#include "Tallyrig/Log/ADIFRecord.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tallyrig {

/// Compares two logs: pairs their records by a key and tells in which fields the pairs differ.
///
/// The key ignores letter case and blanks around a value; the comparison of the fields ignores the blanks
/// only. An absent field counts as empty in both. Records of one key are paired in order of appearance, the
/// first left one with the first right one. Without key fields, or where no record has any of them, all
/// records have one key and so are paired by position.
class ADIFComparator {
  public:
    /// A record of one side that was changed since the logs were compared.
    struct Edit {
        std::size_t row;            ///< Where it stands in the comparison.
        ADIFComparison::Side side;  ///< On which side; the row has a record there.
        const ADIFRecord& before;   ///< As it was; its document may be gone.
    };

    /// The names of the key fields, which are put in upper case.
    explicit ADIFComparator(const std::vector<std::string>& fields);

    /// What the records of one key have in common, as text: the values of the key fields in upper case and
    /// without blanks and tabs around them, joined with U+001F.
    std::string key(const ADIFRecord& record) const;

    /// Cost: one pass over each of the logs, and for each record of either a look-up of its key.
    ADIFComparison compare(const ADIFDocument& left, const ADIFDocument& right) const;

    /// Brings `comparison`, which is that of the logs before `edit`, to what `compare(left, right)` gives,
    /// for logs that are otherwise as they were. If the edit changed the key of the record, so that others
    /// may pair up, it changes nothing and returns false. Cost: the row; if a field was added, removed or
    /// renamed in the record also a look at the records in front of it until one has that field, and where
    /// none has it `ADIFDocument::fieldNames` of both logs.
    [[nodiscard]] bool refresh(ADIFComparison& comparison, const ADIFDocument& left,
                               const ADIFDocument& right, const Edit& edit) const;

  private:
    std::vector<std::string> columns(const ADIFDocument& left, const ADIFDocument& right) const;

    std::vector<std::string> keyFields;
};

}  // namespace tallyrig
