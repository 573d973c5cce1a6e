// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/CrossCheck/CrossCheckFinding.h"
#include "Tallyrig/CrossCheck/CrossCheckStatus.h"

#include <optional>

namespace quillon {

/// Which findings of a cross-check are shown.
class FindingFilter {
  public:
    static constexpr FindingFilter all() { return {Kind::all, {}}; }
    /// All that a person may want to look at: also a confirmed QSO of which there is something to say.
    static constexpr FindingFilter problems() { return {Kind::problems, {}}; }
    static constexpr FindingFilter of(tallyrig::CrossCheckStatus status) { return {Kind::status, status}; }

    /// The one status that is shown; absent for the other two.
    constexpr std::optional<tallyrig::CrossCheckStatus> status() const { return only; }
    bool shows(const tallyrig::CrossCheckFinding& finding) const {
        switch (kind) {
            case Kind::problems:
                return finding.status != tallyrig::CrossCheckStatus::confirmed || !finding.notes.empty();
            case Kind::status:
                return finding.status == only;
            case Kind::all:
                break;
        }
        return true;
    }

    friend constexpr bool operator==(const FindingFilter&, const FindingFilter&) = default;

  private:
    enum class Kind { all, problems, status };

    constexpr FindingFilter(Kind filterKind, std::optional<tallyrig::CrossCheckStatus> onlyStatus)
        : kind(filterKind), only(onlyStatus) {}

    Kind kind;
    std::optional<tallyrig::CrossCheckStatus> only;
};

}  // namespace quillon
