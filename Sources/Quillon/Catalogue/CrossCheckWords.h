#pragma once

#include "Tallyrig/CrossCheck/CrossCheckStatus.h"

#include <string_view>

namespace quillon {

/// What a status is called in German, such as "NIL".
std::string_view label(tallyrig::CrossCheckStatus status);

}  // namespace quillon
