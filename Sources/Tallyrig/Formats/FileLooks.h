// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ReadingReport.h"

#include <string_view>

namespace tallyrig {

/// What the bytes of a file that is no log look like. Looks at their head only.
FileLook lookOf(std::string_view bytes);

}  // namespace tallyrig
