// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/Files/Files.h"
#include "Tallyrig/Outdoor/OutdoorExportFile.h"

#include <functional>
#include <optional>
#include <string>

namespace quillon {

/// Gives the files of an export for an outdoor program names of their own, writes them into `folder`, if
/// there is one, and calls `visit` with each, under its name, when that is done. What is there under a name
/// is replaced.
///
/// The names come from what stands in a log. One that is none for a file in this folder is a failure as any
/// other: it ends the export, and the files before it stay. Without a folder only that can fail. Absent on
/// success; the message names the file.
std::optional<FileError> exportOutdoorFiles(
    const tallyrig::OutdoorExportFiles& files, const std::optional<std::string>& folder,
    const std::function<void(const tallyrig::OutdoorExportFile&)>& visit);

}  // namespace quillon
