// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Log/ADIExaminer.h"

#include "Tallyrig/Text/Decoding.h"
#include "Tallyrig/Text/Text.h"

#include <utility>

namespace tallyrig {

namespace {

/// `bytes`, a piece of a file in whatever encoding, trimmed as text. The result refers to them.
std::string_view trimmedBytes(std::string_view bytes) {
    if (text::isUTF8(bytes)) {
        return text::trimmed(bytes);
    }
    constexpr std::string_view whiteSpace = " \t\r\n\f\v";
    const std::size_t begin = bytes.find_first_not_of(whiteSpace);
    return bytes.substr(begin, bytes.find_last_not_of(whiteSpace) + 1 - begin);
}

}  // namespace

void ADIExaminer::examine(Stretch stretch, std::size_t begin, std::size_t end,
                          std::optional<std::size_t> recordIndex) {
    record = stretch == Stretch::header ? std::nullopt : recordIndex;
    std::optional<Field> last;
    std::size_t firstField = end;
    std::size_t callCount = 0;
    std::size_t position = begin;
    while (true) {
        const std::size_t open = file.substr(0, end).find('<', position);
        const bool isLast = open == std::string_view::npos;
        // In front of the first tag of all stands the comment, or a text that the reader speaks of.
        if (position > 0) {
            examineGap(position, isLast ? end : open, last);
        }
        if (isLast) {
            break;
        }
        auto place = adiTagAt(file, open);
        if (!place) {
            add(ReadingKind::tagWithoutEnd, open);
            break;
        }
        position = place->valueEnd;
        if (place->tag.isMark()) {
            if (stretch == Stretch::record && firstField == end) {
                add(ReadingKind::emptyRecord, open);
            } else if (stretch == Stretch::header && callCount > 0) {
                add(ReadingKind::callInHeader, firstField);
            }
            break;
        }
        firstField = std::min(firstField, open);
        if (place->tag.name == "CALL" && ++callCount == 2) {
            add(ReadingKind::callTwice, open);
        }
        last = Field{*std::move(place)};
        examineField(*last);
    }
    if (stretch == Stretch::header && headerCount++ > 0) {
        add(ReadingKind::headerAgain, std::min(firstField, position));
    }
    if (stretch == Stretch::rest && firstField < end) {
        add(callCount > 0 ? ReadingKind::recordWithoutEnd : ReadingKind::fieldsBehindLastQSO, firstField);
    }
}

void ADIExaminer::examineFront() {
    const std::string_view front = trimmedBytes(file.substr(0, file.find('<')));
    if (!front.empty()) {
        report.add(ReadingKind::textInFront, front);
    }
}

std::optional<ReadingRepair> ADIExaminer::repair() const {
    if (report.has(ReadingKind::lengthsInCharacters)) {
        return ReadingRepair::lengthsInCharacters;
    }
    return hasNearbyEnds ? std::optional(ReadingRepair::lengthsThatFit) : std::nullopt;
}

void ADIExaminer::examineField(Field& field) {
    const PlacedADITag& place = field.place;
    if (place.textIn(file).find('<') != std::string_view::npos) {
        addField(ReadingKind::tagInTag, place, {});
        field.isNoted = true;
    }
    const auto inner = likelyADITag(file, place.valueBegin, place.valueEnd);
    const std::size_t likelyEnd = inner.value_or(place.valueEnd);
    const std::string_view value = file.substr(place.valueBegin, likelyEnd - place.valueBegin);
    if (place.isPastEnd(file)) {
        addField(ReadingKind::lengthPastEnd, place, value);
    } else if (inner && isADIValueEnd(file, place.valueEnd)) {
        addField(ReadingKind::tagInValue, place, value);
    } else if (inner) {
        field.isNoted = true;
        ReadingNote* const note = addField(ReadingKind::lengthTooLong, place, value);
        const bool isRepairable = adiValueEndNearby(file, place).has_value();
        hasNearbyEnds = hasNearbyEnds || isRepairable;
        if (note != nullptr) {
            note->isRepairable = isRepairable;
        }
    }
}

void ADIExaminer::examineGap(std::size_t begin, std::size_t end, std::optional<Field>& before) {
    const std::string_view gap = file.substr(begin, end - begin);
    const std::string_view text = trimmedBytes(gap);
    if (before && before->place.tag.lengthKind == ADILength::noNumber && text.empty()) {
        addField(ReadingKind::lengthNoNumber, before->place, text);
    }
    if (text.empty() || (before && before->isNoted)) {
        return;
    }
    const std::size_t textBegin = static_cast<std::size_t>(text.data() - file.data());
    if (beginsLikeADITag(text)) {
        if (ReadingNote* const note = add(ReadingKind::tagWithoutBegin, textBegin)) {
            note->field = shownInNote(text::upper(text.substr(0, text.find_first_of(":>"))));
        }
    } else if (before) {
        noteGapBehind(*before, begin, text);
    } else {
        add(end == file.size() ? ReadingKind::textBehindLastRecord : ReadingKind::textBetweenFields,
            textBegin);
    }
}

void ADIExaminer::noteGapBehind(const Field& field, std::size_t begin, std::string_view text) {
    const PlacedADITag& place = field.place;
    const std::size_t textBegin = static_cast<std::size_t>(text.data() - file.data());
    const std::string_view whole = file.substr(place.valueBegin, textBegin + text.size() - place.valueBegin);
    if (place.tag.lengthKind == ADILength::missing && !isADIName(place.textIn(file))) {
        // An address in a comment, a mark of a web page.
        add(ReadingKind::textBetweenFields, place.open);
        return;
    }
    if (place.tag.lengthKind != ADILength::number) {
        addField(place.tag.lengthKind == ADILength::noNumber ? ReadingKind::lengthNoNumber
                                                             : ReadingKind::lengthMissing,
                 place, whole);
        return;
    }
    const auto inCharacters = adiValueEndInCharacters(file, place);
    const bool isInCharacters =
        inCharacters && *inCharacters >= textBegin + text.size() && isADIValueEnd(file, *inCharacters);
    // A value is cut amid its text; what stands apart from it is a remark, as some programs make them.
    if (textBegin > begin && !isInCharacters) {
        add(ReadingKind::textBetweenFields, textBegin);
        return;
    }
    const bool isNearby = adiValueEndNearby(file, place).has_value();
    ReadingNote* const note = addField(
        isInCharacters ? ReadingKind::lengthsInCharacters : ReadingKind::lengthTooShort, place, whole);
    hasNearbyEnds = hasNearbyEnds || (isNearby && !isInCharacters);
    if (note != nullptr) {
        note->isRepairable = isInCharacters || isNearby;
    }
}

ReadingNote* ADIExaminer::addField(ReadingKind kind, const PlacedADITag& place, std::string_view value) {
    ReadingNote* const note = add(kind, place.open);
    if (note != nullptr) {
        note->field = shownInNote(place.tag.name);
        note->value = shownInNote(trimmedBytes(value));
    }
    return note;
}

}  // namespace tallyrig
