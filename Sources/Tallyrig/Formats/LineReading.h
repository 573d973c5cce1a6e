// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ReadDocument.h"
#include "Tallyrig/Log/ReadingNotes.h"
#include "Tallyrig/Text/Decoding.h"

#include <string>
#include <string_view>
#include <utility>

namespace tallyrig {

/// Reads a file of a line-by-line format, UTF-8 or ISO 8859-1, with a report. `documentIn` makes the document
/// of its text and tells `Notes`, which are made of `ReadingNotes`, what it meets.
template <typename Notes>
ReadDocument readLines(std::string_view data, ADIFDocument (*documentIn)(std::string_view text, Notes*)) {
    const bool isPlain = !ReadingNotes::hasOddBytes(data);
    std::string buffer;
    const std::string_view text = isPlain ? data : text::decoded(data, buffer);
    ReadingNotes report(text);
    if (!isPlain) {
        report.addEncodingOf(data);
    }
    Notes notes(report);
    ADIFDocument document = documentIn(text, &notes);
    notes.finish();
    return {std::move(document), std::move(report).reportOn(data)};
}

}  // namespace tallyrig
