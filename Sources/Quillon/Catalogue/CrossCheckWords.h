#pragma once

#include "Quillon/Catalogue/BandColors.h"
#include "Tallyrig/CrossCheck/CrossCheckStatus.h"

#include <string_view>

namespace quillon {

/// What a status is called in German, such as "NIL".
std::string_view label(tallyrig::CrossCheckStatus status);
/// The colour under that name.
SystemColor badgeColor(tallyrig::CrossCheckStatus status);

}  // namespace quillon
