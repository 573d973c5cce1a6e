// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Formats/ADXNotes.h"

#include "Tallyrig/Text/ASCII.h"
#include "Tallyrig/Text/Text.h"
#include "Tallyrig/Validation/ADIFSpec317.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace tallyrig {

namespace {

bool isNameByte(char c) {
    return text::isASCIILetter(c) || text::isASCIIDigit(c) || c == '_' || c == '-' || c == '.' || c == ':';
}

/// How many opening tags of records there are in `text`.
std::size_t recordCountIn(std::string_view text) {
    constexpr std::string_view name = "RECORD";
    std::size_t count = 0;
    for (std::size_t at = text.find('<'); at != std::string_view::npos; at = text.find('<', at + 1)) {
        const std::string_view tag = text.substr(at + 1, name.size() + 1);
        const bool isRecord = tag.size() > name.size() && !isNameByte(tag.back()) &&
                              std::ranges::equal(tag.substr(0, name.size()), name, {}, text::upperASCII);
        count += isRecord ? 1 : 0;
    }
    return count;
}

}  // namespace

bool ADXNotes::isKnown(std::string_view upperName) {
    // Those with a prefix are fields of some program; user-defined ones have an element of their own.
    return upperName.starts_with("APP_") || ADIFSpec::fields().find(upperName) != nullptr;
}

void ADXNotes::tell(ReadingKind kind, std::string_view element, std::optional<std::size_t> recordIndex) {
    const std::size_t place = kind == ReadingKind::elementOutside ? leafOffset : offset();
    if (ReadingNote* const note = notes.add(kind, place, recordIndex)) {
        note->field = shownInNote(element);
    }
}

void ADXNotes::tellUnknown(std::string_view element, std::optional<std::size_t> recordIndex) {
    auto known = unknown.find(element);
    if (known == unknown.end()) {
        // So many that they cannot be the fields of a log are no longer told apart.
        if (unknown.size() >= ReadingReport::mostNotes(ReadingKind::unknownElement)) {
            return;
        }
        known = unknown.emplace(element, Unknown{leafOffset, recordIndex, 0}).first;
    }
    ++known->second.count;
}

void ADXNotes::tellEnd(XMLFault fault, bool isInRecord) {
    std::size_t end = offset();
    if (fault == XMLFault::invalidCharacter) {
        // What is wrong with a lone "&" is found only behind it.
        std::size_t name = end;
        while (name > 0 && isNameByte(file[name - 1])) {
            --name;
        }
        if (name > 0 && file[name - 1] == '&') {
            fault = XMLFault::ampersand;
            end = name - 1;
        }
    }
    if (ReadingNote* const note = notes.add(ReadingKind::xmlEnded, end)) {
        note->fault = fault;
        note->number = recordCountIn(file.substr(end)) + (isInRecord ? 1 : 0);
    }
}

ReadingReport ADXNotes::report(std::size_t recordCount) && {
    std::vector<std::pair<std::string, Unknown>> elements(unknown.begin(), unknown.end());
    std::ranges::sort(elements, {}, [](const auto& element) { return element.second.offset; });
    for (const auto& [name, place] : elements) {
        if (ReadingNote* const note =
                notes.add(ReadingKind::unknownElement, place.offset, place.recordIndex)) {
            note->field = shownInNote(name);
            note->count = place.count;
        }
    }
    // A record that was still open when the reading ended never came to be.
    const ReadingReport all = std::move(notes).report();
    std::vector<ReadingNote> checked(all.notes().begin(), all.notes().end());
    for (ReadingNote& note : checked) {
        if (note.recordIndex && *note.recordIndex >= recordCount) {
            note.recordIndex.reset();
        }
    }
    return ReadingReport(std::move(checked));
}

}  // namespace tallyrig
