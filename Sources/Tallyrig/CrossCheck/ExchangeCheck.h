// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/CrossCheck/QSOFields.h"

#include <string>
#include <string_view>
#include <vector>

namespace tallyrig {

/// What one station received beside what the other sent: a German remark for each part of the exchange that
/// differs, in the order exchange, number, report (only if it counts), locator. A part that one side lacks
/// is not compared.
std::vector<std::string> exchangeMismatches(const QSOValues& received, const QSOValues& sent, bool checkRST);

/// Whether two exchanges say the same: word by word, without case and leading zeros, and if need be without
/// the report in front of them.
bool exchangeEqual(std::string_view left, std::string_view right);

}  // namespace tallyrig
