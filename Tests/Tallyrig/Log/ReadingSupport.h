// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ReadingReport.h"

#include <string>

namespace tallyrig::testing {

/// The notes of a report, one in a line: "kind at OFFSET in LINE", then, where there is such a thing,
/// "#RECORD", "x PLACES", "FIELD", "=VALUE", "NUMBER/EXPECTED" and "+" for a note with a repair.
inline std::string notesIn(const ReadingReport& report) {
    std::string text;
    for (const ReadingNote& note : report.notes()) {
        text += text.empty() ? "" : "\n";
        text += std::string(nameOf(note.kind)) + " at " + std::to_string(note.offset) + " in " +
                std::to_string(note.line);
        text += note.recordIndex ? " #" + std::to_string(*note.recordIndex) : "";
        text += note.count > 1 ? " x " + std::to_string(note.count) : "";
        text += note.field.empty() ? "" : " " + note.field;
        text += note.value.empty() ? "" : " =" + note.value;
        text += note.number + note.expected > 0
                    ? " " + std::to_string(note.number) + "/" + std::to_string(note.expected)
                    : "";
        text += note.isRepairable ? " +" : "";
    }
    return text;
}

}  // namespace tallyrig::testing
