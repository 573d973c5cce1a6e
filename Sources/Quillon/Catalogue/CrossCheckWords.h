// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Catalogue/BandColors.h"
#include "Tallyrig/CrossCheck/CrossCheckStatus.h"

#include <optional>
#include <string>
#include <string_view>

namespace tallyrig {
class LogWork;
}

namespace quillon {

/// What a status is called in German, such as "NIL".
std::string_view label(tallyrig::CrossCheckStatus status);
/// The colour under that name.
SystemColor badgeColor(tallyrig::CrossCheckStatus status);
/// A share from 0 to 1 of QSOs without an error, such as "66,7 %"; "–" if it is absent.
std::string quotaText(std::optional<double> share);
/// How far the reading of logs is, such as "1.204 von 1.860 Logs gelesen …".
std::string readingText(const tallyrig::LogWork& reading);

}  // namespace quillon
