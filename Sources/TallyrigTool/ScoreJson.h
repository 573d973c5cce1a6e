// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Contest/ContestScore.h"
#include "TallyrigTool/Console.h"

namespace tallyrig::tool {

/// Writes all members of the score by their names as a JSON object, its results one to a line.
void writeJson(Output& output, const ContestScore& score);

}  // namespace tallyrig::tool
