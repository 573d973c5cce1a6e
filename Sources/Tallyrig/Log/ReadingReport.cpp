// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Log/ReadingReport.h"

#include <array>
#include <utility>

namespace tallyrig {

namespace {

struct KindTraits {
    std::string_view name;
    ReadingSeverity severity = ReadingSeverity::error;
    std::size_t mostNotes = 1;
};

/// More than anybody reads, and few enough for a list on screen.
constexpr std::size_t eachPlace = 500;
constexpr std::size_t once = 1;

/// In the order of the cases.
constexpr auto kinds = std::to_array<KindTraits>({
    {"emptyFile", ReadingSeverity::warning, once},
    {"noLog", ReadingSeverity::error, once},
    {"noQSOs", ReadingSeverity::note, once},
    {"cabrilloInside", ReadingSeverity::note, once},
    {"latin1", ReadingSeverity::note, once},
    {"windowsCharacters", ReadingSeverity::warning, once},
    {"nulBytes", ReadingSeverity::warning, once},
    {"lostCharacters", ReadingSeverity::warning, once},
    {"lengthsInCharacters", ReadingSeverity::error, once},
    {"lengthTooShort", ReadingSeverity::error, eachPlace},
    {"lengthTooLong", ReadingSeverity::error, eachPlace},
    {"tagInValue", ReadingSeverity::warning, eachPlace},
    {"lengthMissing", ReadingSeverity::error, eachPlace},
    {"lengthNoNumber", ReadingSeverity::error, eachPlace},
    {"lengthPastEnd", ReadingSeverity::error, eachPlace},
    {"tagWithoutEnd", ReadingSeverity::error, once},
    {"tagInTag", ReadingSeverity::error, eachPlace},
    {"tagWithoutBegin", ReadingSeverity::error, eachPlace},
    {"callTwice", ReadingSeverity::error, eachPlace},
    {"recordWithoutEnd", ReadingSeverity::warning, once},
    {"fieldsBehindLastQSO", ReadingSeverity::note, once},
    {"emptyRecord", ReadingSeverity::note, once},
    {"headerAgain", ReadingSeverity::note, once},
    {"callInHeader", ReadingSeverity::error, eachPlace},
    {"textInFront", ReadingSeverity::note, once},
    {"textBetweenFields", ReadingSeverity::note, once},
    {"textBehindLastRecord", ReadingSeverity::warning, once},
    {"tooFewColumns", ReadingSeverity::error, eachPlace},
    {"columnsDoubted", ReadingSeverity::error, once},
    {"callMissing", ReadingSeverity::warning, eachPlace},
    {"callImplausible", ReadingSeverity::warning, eachPlace},
    {"callColumnDoubted", ReadingSeverity::warning, once},
    {"ignoredQSO", ReadingSeverity::note, once},
    {"qtcLeftOut", ReadingSeverity::warning, once},
    {"unknownKey", ReadingSeverity::note, once},
    {"lineLeftOut", ReadingSeverity::error, eachPlace},
    {"textLeftOut", ReadingSeverity::note, once},
    {"headerTwice", ReadingSeverity::warning, eachPlace},
    {"fewerColumns", ReadingSeverity::warning, eachPlace},
    {"countDisagrees", ReadingSeverity::warning, once},
    {"claimDisagrees", ReadingSeverity::note, eachPlace},
    {"xmlEnded", ReadingSeverity::error, once},
    {"unknownElement", ReadingSeverity::note, eachPlace},
    {"elementOutside", ReadingSeverity::error, eachPlace},
    {"elementInside", ReadingSeverity::error, eachPlace},
    {"recordInRecord", ReadingSeverity::error, eachPlace},
});
static_assert(kinds.size() == static_cast<std::size_t>(ReadingKind::recordInRecord) + 1);

const KindTraits& traitsOf(ReadingKind kind) {
    return kinds[static_cast<std::size_t>(kind)];
}

}  // namespace

ReadingSeverity ReadingNote::severity() const {
    return ReadingReport::severityOf(kind);
}

ReadingReport::ReadingReport(std::vector<ReadingNote> notes, std::optional<ReadingRepair> repair)
    : allNotes(std::move(notes)), certainRepair(repair) {}

std::size_t ReadingReport::placeCount(ReadingSeverity severity) const {
    std::size_t count = 0;
    for (const ReadingNote& note : allNotes) {
        count += note.severity() == severity ? note.count : 0;
    }
    return count;
}

std::size_t ReadingReport::noteCount(ReadingSeverity severity) const {
    std::size_t count = 0;
    for (const ReadingNote& note : allNotes) {
        const std::size_t own = mostNotes(note.kind) == once ? 1 : note.count;
        count += note.severity() == severity ? own : 0;
    }
    return count;
}

ReadingSeverity ReadingReport::severityOf(ReadingKind kind) {
    return traitsOf(kind).severity;
}

std::size_t ReadingReport::mostNotes(ReadingKind kind) {
    return traitsOf(kind).mostNotes;
}

std::string_view nameOf(ReadingKind kind) {
    return traitsOf(kind).name;
}

std::string_view nameOf(ReadingSeverity severity) {
    constexpr std::array<std::string_view, 3> names = {"error", "warning", "note"};
    return names[static_cast<std::size_t>(severity)];
}

}  // namespace tallyrig
