// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/Panels.h"
#include "Tallyrig/Formats/ADXWriter.h"
#include "Tallyrig/Log/ADIFDocument.h"
#include "Tallyrig/Log/ADIFWriter.h"

#include <QString>

#include <string>
#include <variant>

namespace quillon {

/// What writes logs in a format that holds whole ones.
using LogWriter = std::variant<tallyrig::ADIFWriter, tallyrig::ADXWriter>;

/// A log as it goes into a file, and whether it is to.
struct LogText {
    std::string text;
    LossAnswer answer = LossAnswer::saveAnyway;
    bool isWhole = true;  ///< Reading the text gives the log again.
};

/// Writes the log and reads it back. Where not all of it would come back, the user is asked what to do about
/// the file at `path`: `other`, which may be null, writes the other format that is offered if nothing is
/// lost in that. Cost: writing, and one reading where nothing is lost.
LogText textToSave(const tallyrig::ADIFDocument& document, const LogWriter& writer, const LogWriter* other,
                   const QString& path, Panels& panels);

}  // namespace quillon
