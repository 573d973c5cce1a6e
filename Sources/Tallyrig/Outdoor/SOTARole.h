// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string_view>

namespace tallyrig {

/// Who works from a summit and who works those on it.
enum class SOTARole { activator, chaser };

inline constexpr std::array sotaRoles = {SOTARole::activator, SOTARole::chaser};

/// The name of the role, "Activator" or "Chaser".
constexpr std::string_view rawValue(SOTARole role) {
    return role == SOTARole::activator ? "Activator" : "Chaser";
}

/// The field that names the summit which makes a QSO one of this role.
constexpr std::string_view summitField(SOTARole role) {
    return role == SOTARole::activator ? "MY_SOTA_REF" : "SOTA_REF";
}

}  // namespace tallyrig
