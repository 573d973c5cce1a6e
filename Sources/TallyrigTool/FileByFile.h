// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "TallyrigTool/Console.h"

#include <functional>
#include <string>
#include <vector>

namespace tallyrig::tool {

/// Writes the result for a file, as a JSON object or as text, and says what there is to object to.
using FileResult = std::function<ExitStatus(Output&)>;

/// Runs a command for one file after the other: `resultOf` does the work, and what it gives writes it, into
/// one JSON list or with an empty line between two texts. A file for which `resultOf` throws a `Failure` is
/// complained of and left out, as `grep` goes on behind a file that it cannot read. The worst status of all.
ExitStatus forEachFile(const std::vector<std::string>& files, bool asJson, Output& output,
                       const std::function<FileResult(const std::string&)>& resultOf);

}  // namespace tallyrig::tool
