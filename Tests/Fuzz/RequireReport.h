// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Fuzz/Require.h"
#include "Tallyrig/Log/ReadDocument.h"
#include "Tallyrig/Text/Decoding.h"
#include "Tallyrig/Text/VisibleText.h"

#include <cstddef>
#include <map>
#include <string_view>

/// What holds of the report on any file of `size` bytes.
inline void requireSound(const tallyrig::ReadingReport& report, std::size_t size, std::size_t recordCount) {
    using namespace tallyrig;
    std::size_t offset = 0;
    std::size_t line = 1;
    std::map<ReadingKind, std::size_t> counts;
    for (const ReadingNote& note : report.notes()) {
        require(note.offset >= offset && note.line >= line, "notes ascend");
        offset = note.offset;
        line = note.line;
        require(offset <= size && line <= size + 1, "a note stands in the file");
        require(!note.recordIndex || *note.recordIndex < recordCount, "a note is about a record of the log");
        for (const std::string_view text : {note.excerpt, note.field, note.value}) {
            require(text::isUTF8(text) && !text::holdsUnseen(text), "what a note shows is text to be seen");
            // A character takes four bytes at most, and the name of one not seen three times as many.
            require(text.size() <= 16 * (ReadingReport::mostCharacters + 1), "what a note shows is short");
        }
        require(note.count >= 1 && ++counts[note.kind] <= ReadingReport::mostNotes(note.kind),
                "a report has no more notes of a kind than it may");
    }
}
