// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFDocument.h"

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

namespace tallyrig {

/// The moment in UTC as writers stamp it: "yyyyMMdd HHmmss".
std::string timestamp(std::chrono::system_clock::time_point moment);

/// Renders documents as ADI text (ADIF 3.1.7, section "ADI Files"). Validates and filters nothing.
struct ADIFWriter {
    std::string programID;
    std::string programVersion;
    std::string adifVersion;
    bool writeHeader = true;  ///< Whether comment, header fields and EOH are written at all.

    /// The complete text. `ADIF_VER`, `PROGRAMID`, `PROGRAMVERSION` and `CREATED_TIMESTAMP` are always the
    /// writer's own, in the places where the document has them, otherwise at the end of its header.
    /// `createdTimestamp` is the text of the last of them.
    std::string write(const ADIFDocument& document,
                      std::string_view createdTimestamp = timestamp(std::chrono::system_clock::now())) const;

    /// The header fields with the four of the writer's own put in.
    std::vector<ADIFField> headerFields(const ADIFDocument& document,
                                        std::string_view createdTimestamp) const;
    /// The document's comment or, where that is empty, the default one.
    std::string headerComment(const ADIFDocument& document) const;
};

}  // namespace tallyrig
