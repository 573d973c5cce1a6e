// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <array>
#include <optional>

namespace quillon {

/// The pane of the sidebar and with it the work area.
enum class AppMode { check, compare, stats, contest, outdoor };

inline constexpr std::array allAppModes = {AppMode::check, AppMode::compare, AppMode::stats, AppMode::contest,
                                           AppMode::outdoor};

/// The text under which a mode is stored.
QString storedValue(AppMode mode);

}  // namespace quillon
