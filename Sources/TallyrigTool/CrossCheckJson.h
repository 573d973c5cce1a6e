// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Adjudication/CrossCheckRanking.h"
#include "Tallyrig/Adjudication/CrossCheckScore.h"
#include "Tallyrig/CrossCheck/CrossCheckLog.h"
#include "Tallyrig/CrossCheck/CrossCheckReport.h"
#include "TallyrigTool/Console.h"

#include <span>
#include <string_view>
#include <vector>

namespace tallyrig::tool {

/// Writes a finished cross-check as one JSON object. Logs are named by their positions in its list of them.
void writeJson(Output& output, std::string_view contestName, std::span<const CrossCheckLog> logs,
               const CrossCheckReport& report, const CrossCheckScores& scores,
               const std::vector<CrossCheckEntry>& ranking);

}  // namespace tallyrig::tool
