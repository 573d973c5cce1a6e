// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFRecord.h"

#include <string>
#include <string_view>

/// Summits as SOTA refers to them, and the call of who was there.
namespace tallyrig::SOTAReference {

/// Whether `reference`, blanks around it and in any case, is an association, a region and a number, such as
/// "HB/BE-001".
bool isValid(std::string_view reference);

/// The call sign of the station in upper case: `STATION_CALLSIGN` or, where that is blank, `OPERATOR`. Empty
/// where both are.
std::string resolveCall(const ADIFRecord& record);

}  // namespace tallyrig::SOTAReference
