// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Formats/EDINotes.h"

#include "Tallyrig/Text/ASCII.h"
#include "Tallyrig/Text/Numbers.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>

namespace tallyrig {

namespace {

constexpr std::size_t fewestColumns = 4;
constexpr std::size_t readColumns = 10;

/// Sums and counts beyond this are no claims that a log makes.
constexpr std::int64_t mostOfAll = 1'000'000'000'000;

/// A number of QSOs or points.
std::optional<std::int64_t> count(std::string_view text) {
    const std::optional<std::int64_t> number = text::integer(text::trimmedOfBlanks(text));
    return number && *number >= 0 && *number <= mostOfAll ? number : std::nullopt;
}

}  // namespace

void EDINotes::tellSection(std::string_view line) {
    const std::string name = text::upper(line);
    isInRemarks = name.starts_with("[REMARKS");
    const std::size_t semicolon = line.find(';');
    if (name.starts_with("[QSORECORDS") && semicolon != std::string_view::npos) {
        const std::string_view written = line.substr(semicolon + 1);
        if (const auto number = count(written.substr(0, written.find_first_of("];")))) {
            declaredCount = declaredCount.value_or(Claim{line, 0});
            declaredCount->number = std::min(declaredCount->number + *number, mostOfAll);
        }
    }
}

void EDINotes::tellLine(std::string_view line, std::optional<std::string_view> key, std::string_view value) {
    constexpr std::ptrdiff_t semicolonsOfQSO = 8;
    if (!key) {
        if (std::ranges::count(line, ';') >= semicolonsOfQSO) {
            report.add(ReadingKind::lineLeftOut, line);
        } else if (!isInRemarks && !text::trimmedOfBlanks(line).empty()) {
            report.add(ReadingKind::textLeftOut, line);
        }
    } else if (const auto number = count(value.substr(0, value.find(';'))); number && *key == "CQSOS") {
        claimedCount = Claim{line, *number};
    } else if (number && *key == "CQSOP") {
        claimedPoints = Claim{line, *number};
    }
}

void EDINotes::tellShort(std::string_view line, std::size_t columnCount) {
    ++lineCount;
    haveAllPoints = false;
    if (ReadingNote* const note = report.add(ReadingKind::tooFewColumns, line)) {
        note->number = columnCount;
        note->expected = fewestColumns;
    }
}

void EDINotes::tellQSO(std::string_view line, std::size_t columnCount, std::string_view rest,
                       std::string_view call, std::size_t recordIndex) {
    ++lineCount;
    if (columnCount < readColumns) {
        if (ReadingNote* const note = report.add(ReadingKind::fewerColumns, line, recordIndex)) {
            note->number = columnCount;
            note->expected = readColumns;
        }
    }
    if (call.empty()) {
        report.add(ReadingKind::callMissing, line, recordIndex);
    }
    if (claimedCount || claimedPoints) {
        addPoints(rest);
    }
}

void EDINotes::addPoints(std::string_view rest) {
    // Points, three flags of what is new, and the mark of a duplicate: short, and the same for every QSO, so
    // that they are walked once by hand.
    constexpr std::size_t mostDigits = 9;
    constexpr int columnsBeforeMark = 4;
    std::size_t at = 0;
    std::int64_t number = 0;
    while (at < rest.size() && at < mostDigits && text::isASCIIDigit(rest[at])) {
        number = number * 10 + (rest[at++] - '0');
    }
    if (at == 0 || (at < rest.size() && rest[at] != ';')) {
        at = std::min(rest.find(';'), rest.size());
        const std::optional<std::int64_t> written = count(rest.substr(0, at));
        haveAllPoints = haveAllPoints && written;
        number = written.value_or(0);
    }
    haveAllPoints = haveAllPoints && points <= mostOfAll;
    points += haveAllPoints ? number : 0;
    for (int column = 0; column < columnsBeforeMark && at < rest.size(); ++at) {
        column += rest[at] == ';' ? 1 : 0;
    }
    if (at < rest.size() && rest[at] != ';') {
        const std::string_view mark = rest.substr(at);
        duplicateCount += text::trimmedOfBlanks(mark.substr(0, mark.find(';'))).empty() ? 0 : 1;
    }
}

void EDINotes::finish() {
    if (declaredCount && declaredCount->number != lineCount) {
        if (ReadingNote* const note = report.add(ReadingKind::countDisagrees, declaredCount->line)) {
            note->number = static_cast<std::size_t>(lineCount);
            note->expected = static_cast<std::size_t>(declaredCount->number);
        }
    }
    // Some programs count duplicates, which are worth nothing.
    if (claimedCount && claimedCount->number != lineCount) {
        finishClaim("CQSOs", claimedCount, lineCount - duplicateCount);
    }
    // Where no QSO has points, the evaluator is to find them.
    if (haveAllPoints && points > 0) {
        finishClaim("CQSOP", claimedPoints, points);
    }
}

void EDINotes::finishClaim(std::string_view field, const std::optional<Claim>& claim, std::int64_t found) {
    if (!claim || claim->number == found) {
        return;
    }
    if (ReadingNote* const note = report.add(ReadingKind::claimDisagrees, claim->line)) {
        note->field = field;
        note->number = static_cast<std::size_t>(found);
        note->expected = static_cast<std::size_t>(claim->number);
    }
}

}  // namespace tallyrig
