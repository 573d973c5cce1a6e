// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFDocument.h"
#include "Tallyrig/Log/ADIFWriter.h"

#include <chrono>
#include <string>
#include <string_view>

namespace tallyrig {

/// Renders documents as ADX text (ADIF 3.1.7, section "ADX Files"). Validates and filters nothing: a field
/// whose name is no XML name makes a text that is no XML. The document's comment has no place in ADX.
struct ADXWriter {
    std::string programID;
    std::string programVersion;
    std::string adifVersion;
    /// Whether the four fields of the writer's own are put into the header. Without them the document's own
    /// header fields are written as they are, and no header where it has none.
    bool writeHeader = true;

    /// The complete text. The four fields and `createdTimestamp` are those of `ADIFWriter::write`.
    std::string write(const ADIFDocument& document,
                      std::string_view createdTimestamp = timestamp(std::chrono::system_clock::now())) const;
};

}  // namespace tallyrig
