// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Formats/CabrilloNotes.h"

#include "Tallyrig/Text/ASCII.h"
#include "Tallyrig/Text/Text.h"
#include "Tallyrig/Validation/ADIFValidator.h"

#include <algorithm>
#include <array>

namespace tallyrig {

namespace {

constexpr std::size_t columnCount = 10;
constexpr std::size_t behindMark = 4;  ///< Behind "QSO:", which need not have a blank there.

/// How many columns there are between blanks and tabs.
std::size_t countedColumns(std::string_view line) {
    std::size_t count = 0;
    for (std::size_t at = line.find_first_not_of(" \t"); at != std::string_view::npos;
         at = line.find_first_not_of(" \t", at)) {
        ++count;
        at = std::min(line.find_first_of(" \t", at), line.size());
    }
    return count;
}

/// The keys of versions 2 and 3, but for the families that `isKnownKey` has by their beginning.
constexpr std::array<std::string_view, 18> knownKeys = {
    "START-OF-LOG", "END-OF-LOG", "ARRL-SECTION", "CALLSIGN",         "CERTIFICATE", "CLAIMED-SCORE",
    "CLUB",         "CLUB-NAME",  "CONTEST",      "CREATED-BY",       "DEBUG",       "EMAIL",
    "GRID-LOCATOR", "LOCATION",   "NAME",         "IOTA-ISLAND-NAME", "OFFTIME",     "OPERATORS"};

bool isKnownKey(std::string_view key) {
    constexpr std::array<std::string_view, 4> families = {"ADDRESS", "CATEGORY", "SOAPBOX", "X-"};
    return std::ranges::find(knownKeys, key) != knownKeys.end() ||
           std::ranges::any_of(families, [key](std::string_view family) { return key.starts_with(family); });
}

/// Whether a line that is none looks like a QSO all the same: it names itself one, or has the columns of one.
bool looksLikeQSO(std::string_view line) {
    constexpr std::size_t fewestColumns = 8;
    return text::upper(line).find("QSO:") != std::string::npos || text::upper(line).starts_with("QSO ") ||
           (text::isASCIIDigit(line.front()) && countedColumns(line) >= fewestColumns);
}

/// Two letters and two digits, behind which `size` leaves room for two letters more.
bool isLocator(std::string_view text, std::size_t size) {
    const auto isLetter = [text](std::size_t at) { return text::isASCIILetter(text[at]); };
    return text.size() == size && isLetter(0) && isLetter(1) && text::isASCIIDigit(text[2]) &&
           text::isASCIIDigit(text[3]) && (size == 4 || (isLetter(4) && isLetter(5)));
}

}  // namespace

void CabrilloNotes::tellLine(std::string_view line, std::optional<std::string_view> key) {
    // A web page has its own marks around the first and the last line.
    if (key && key->ends_with("START-OF-LOG")) {
        isInLog = true;
    } else if (key && key->ends_with("END-OF-LOG")) {
        isInLog = false;
    } else if (key == "X-QSO") {
        report.add(ReadingKind::ignoredQSO, line);
    } else if (!isInLog || line.empty() || (key && isKnownKey(*key))) {
        return;
    } else if (key == "QTC") {
        report.add(ReadingKind::qtcLeftOut, line);
    } else if (looksLikeQSO(line)) {
        report.add(ReadingKind::lineLeftOut, line);
    } else if (!key || key->empty()) {
        report.add(ReadingKind::textLeftOut, line);
    } else if (ReadingNote* const note = report.add(ReadingKind::unknownKey, line)) {
        note->field = shownInNote(*key);
    }
}

void CabrilloNotes::tellShort(std::string_view line) {
    shortLines.add({line, {}, 0});
}

void CabrilloNotes::finish() {
    finishShortLines();
    finishCalls();
}

void CabrilloNotes::finishShortLines() {
    const std::size_t lineCount = qsoCount + shortLines.count;
    if (2 * shortLines.count > lineCount) {
        if (ReadingNote* const note = report.add(ReadingKind::columnsDoubted, shortLines.qsos[0].line)) {
            note->number = note->count = shortLines.count;
            note->expected = lineCount;
        }
        return;
    }
    ReadingNote* note = nullptr;
    for (const DoubtfulQSO& qso : shortLines.qsos) {
        note = report.add(ReadingKind::tooFewColumns, qso.line);
        note->number = countedColumns(qso.line.substr(behindMark));
        note->expected = columnCount;
    }
    if (note != nullptr) {
        note->count += shortLines.count - shortLines.qsos.size();
    }
}

void CabrilloNotes::finishCalls() {
    const std::size_t doubtful = calls.count + locators.count;
    if (2 * doubtful > qsoCount) {
        const bool areLocatorsFirst =
            calls.qsos.empty() ||
            (!locators.qsos.empty() && locators.qsos[0].recordIndex < calls.qsos[0].recordIndex);
        const DoubtfulQSO& first = areLocatorsFirst ? locators.qsos[0] : calls.qsos[0];
        ReadingNote* const note = report.add(ReadingKind::callColumnDoubted, first.line, first.recordIndex);
        note->number = note->count = doubtful;
        note->expected = qsoCount;
        note->value = shownInNote(first.call);
        return;
    }
    ReadingNote* note = nullptr;
    for (const DoubtfulQSO& qso : calls.qsos) {
        note = report.add(ReadingKind::callImplausible, qso.line, qso.recordIndex);
        note->value = shownInNote(qso.call);
    }
    if (note != nullptr) {
        note->count += calls.count - calls.qsos.size();
    }
}

void CabrilloNotes::Doubtful::add(const DoubtfulQSO& qso) {
    ++count;
    if (qsos.size() < ReadingReport::mostNotes(ReadingKind::callImplausible)) {
        qsos.push_back(qso);
    }
}

bool CabrilloNotes::isPlainCall(std::string_view call) {
    bool hasDigit = false;
    for (const char c : call) {
        if (!text::isASCIIUpper(c) && !text::isASCIIDigit(c)) {
            return false;
        }
        hasDigit = hasDigit || text::isASCIIDigit(c);
    }
    return hasDigit && call.size() >= 3 && call.size() <= 12 && text::isASCIIUpper(call.back()) &&
           (!text::isASCIIDigit(call[2]) || !isLocator(call, 6));
}

void CabrilloNotes::tellDoubtful(const DoubtfulQSO& qso, std::string_view ownCall) {
    if (text::upper(qso.call) == text::upper(ownCall) || isLocator(qso.call, 4) ||
        !ADIFValidator::isPlausibleCallsign(qso.call)) {
        calls.add(qso);
    } else if (isLocator(qso.call, 6)) {
        locators.add(qso);
    }
}

}  // namespace tallyrig
