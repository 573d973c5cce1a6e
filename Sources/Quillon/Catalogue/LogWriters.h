// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Formats/ADXWriter.h"
#include "Tallyrig/Log/ADIFWriter.h"

#include <string_view>

namespace quillon {

/// The version of the program as text, "dev" if it has none.
std::string_view programVersion();

/// The ADIF version to be named in a file where the user asks for `wanted`: as it stands, or the current one
/// where it is blank.
std::string_view adifVersionFor(std::string_view wanted);

/// The writers as this program sets them up for every file that it writes. `wantedVersion` as for
/// `adifVersionFor`.
tallyrig::ADIFWriter adifWriter(std::string_view wantedVersion, bool writeHeader);
tallyrig::ADXWriter adxWriter(std::string_view wantedVersion, bool writeHeader);

}  // namespace quillon
