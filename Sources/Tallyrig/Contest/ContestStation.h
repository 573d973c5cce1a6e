#pragma once

#include "Tallyrig/Text/MemberEquality.h"

#include <string>
#include <tuple>

namespace tallyrig {

/// The evaluated station's own data. Rules compare them as they stand, without trimming or folding.
struct ContestStation {
    std::string dxcc{};       ///< Entity code, such as "287".
    std::string continent{};  ///< Such as "EU".
    std::string cqZone{};
    std::string ituZone{};
    std::string gridSquare{};  ///< For QSOs that do not name the own locator.

    auto members() const { return std::tie(dxcc, continent, cqZone, ituZone, gridSquare); }
    friend bool operator==(const ContestStation& left, const ContestStation& right) {
        return text::haveEqualMembers(left, right);
    }
};

}  // namespace tallyrig
