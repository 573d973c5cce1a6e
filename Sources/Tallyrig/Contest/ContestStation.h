// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFDocument.h"
#include "Tallyrig/Text/MemberEquality.h"

#include <string>
#include <string_view>
#include <tuple>

namespace tallyrig {

/// The evaluated station's own data. Rules compare them as they stand, without trimming or folding.
struct ContestStation {
    std::string dxcc{};       ///< Entity code, such as "287".
    std::string continent{};  ///< Such as "EU".
    std::string cqZone{};
    std::string ituZone{};
    std::string gridSquare{};  ///< For QSOs that do not name the own locator.

    /// The same for the station of one log among many: entity and continent as the owner's call tells them,
    /// the locator that most records name as their own, in upper case. What nothing tells stays, and so do
    /// the zones. Locators of less than four characters tell nothing.
    ContestStation adapted(std::string_view owner, const ADIFDocument& log) const;

    auto members() const { return std::tie(dxcc, continent, cqZone, ituZone, gridSquare); }
    friend bool operator==(const ContestStation& left, const ContestStation& right) {
        return text::haveEqualMembers(left, right);
    }
};

}  // namespace tallyrig
