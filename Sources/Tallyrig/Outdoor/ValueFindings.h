// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/Shared.h"
#include "Tallyrig/Text/ByteWords.h"
#include "Tallyrig/Validation/ValidationIssue.h"
#include "Tallyrig/Validation/ValidationKind.h"

#include <cstddef>
#include <string_view>
#include <utility>
#include <vector>

namespace tallyrig {

/// The findings about one field of record after record. Whoever is on a summit stays there for a while: what
/// there is to say of a value is worked out once for all records in a row that have it.
class ValueFindings {
  public:
    /// Adds to `issues` what there is to say of `value` in the record at `recordIndex`. `find(value, add)`
    /// works it out and calls `add` with each kind of finding. `value` must outlive this.
    template <typename Find>
    void addTo(std::vector<ValidationIssue>& issues, std::size_t recordIndex, std::string_view value,
               Find find) {
        if (isFirst || !text::areSameBytes(value, lastValue)) {
            isFirst = false;
            lastValue = value;
            kinds.clear();
            find(value, [this](ValidationKind kind) {
                kinds.push_back(Shared<ValidationKind>::make(std::move(kind)));
            });
        }
        for (const Shared<ValidationKind>& kind : kinds) {
            issues.emplace_back(recordIndex, kind);
        }
    }

  private:
    bool isFirst = true;
    std::string_view lastValue;
    std::vector<Shared<ValidationKind>> kinds;  ///< Said of that value.
};

}  // namespace tallyrig
