// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Validation/ADIFValidator.h"

#include "Tallyrig/Text/ASCII.h"
#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/Text.h"
#include "Tallyrig/Validation/DuplicateGroups.h"
#include "Tallyrig/Validation/ValidationRun.h"

#include <algorithm>
#include <chrono>
#include <compare>
#include <span>
#include <utility>

namespace tallyrig {

namespace {

/// Digits of other scripts are numeric, but they cannot be read as a number: a date or time of them is none.
bool isAllDigits(std::string_view text) {
    return std::ranges::all_of(text, text::isASCIIDigit);
}

int twoDigits(std::string_view text, std::size_t at) {
    return (text[at] - '0') * 10 + (text[at + 1] - '0');
}

/// Whether a character lies in a range of letters, by the order of texts: a letter with a mark that is no
/// letter of its own stands behind the bare one.
bool liesIn(std::string_view character, std::string_view first, std::string_view last) {
    return std::is_lteq(text::compare(first, character)) && std::is_lteq(text::compare(character, last));
}

bool isGridsquare(std::span<const std::string_view> characters) {
    if (characters.size() < 2 || characters.size() > 8 || characters.size() % 2 != 0) {
        return false;
    }
    for (std::size_t pair = 0; pair < characters.size() / 2; ++pair) {
        for (const std::string_view character : characters.subspan(pair * 2, 2)) {
            const bool isFitting = pair == 0   ? liesIn(character, "A", "R")
                                   : pair == 2 ? liesIn(character, "A", "X")
                                               : text::isNumeric(character);
            if (!isFitting) {
                return false;
            }
        }
    }
    return true;
}

/// The same for ASCII, where characters are bytes. CR LF is one character, but no part of a locator either
/// way.
bool isASCIIGridsquare(std::string_view text) {
    if (text.size() < 2 || text.size() > 8 || text.size() % 2 != 0) {
        return false;
    }
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char c = text[at];
        const std::size_t pair = at / 2;
        if (pair == 0 ? c < 'A' || c > 'R' : pair == 2 ? c < 'A' || c > 'X' : !text::isASCIIDigit(c)) {
            return false;
        }
    }
    return true;
}

void makeUpper(std::vector<std::string>& texts) {
    for (std::string& text : texts) {
        text = text::upper(text);
    }
}

}  // namespace

ADIFValidator::ADIFValidator(std::vector<std::string> required, std::vector<std::string> duplicateKey,
                             bool checkRequired, bool checkFormats, bool checkDuplicates, bool checkUnknown)
    : requiredFields(std::move(required)),
      duplicateKeyFields(std::move(duplicateKey)),
      checksRequiredFields(checkRequired),
      checksFormats(checkFormats),
      checksDuplicates(checkDuplicates),
      checksUnknownFields(checkUnknown) {
    makeUpper(requiredFields);
    makeUpper(duplicateKeyFields);
}

std::vector<std::string> ADIFValidator::usualRequiredFields() {
    return {"CALL", "QSO_DATE", "TIME_ON", "BAND", "MODE"};
}

std::vector<ValidationIssue> ADIFValidator::issues(const ADIFDocument& document) const {
    return ValidationRun(*this, document.records()).issues();
}

std::vector<std::vector<std::size_t>> ADIFValidator::duplicateGroups(const ADIFDocument& document) const {
    return tallyrig::duplicateGroups(document.records(), duplicateKeyFields);
}

bool ADIFValidator::isValidDate(std::string_view text) {
    if (text.size() != 8 || !isAllDigits(text)) {
        return false;
    }
    const int year = twoDigits(text, 0) * 100 + twoDigits(text, 2);
    const std::chrono::year_month_day date(std::chrono::year(year),
                                           std::chrono::month(static_cast<unsigned>(twoDigits(text, 4))),
                                           std::chrono::day(static_cast<unsigned>(twoDigits(text, 6))));
    return year >= 1930 && year <= 2100 && date.ok();
}

bool ADIFValidator::isValidTime(std::string_view text) {
    return (text.size() == 4 || text.size() == 6) && isAllDigits(text) && twoDigits(text, 0) <= 23 &&
           twoDigits(text, 2) <= 59 && (text.size() == 4 || twoDigits(text, 4) <= 59);
}

bool ADIFValidator::isValidGridsquare(std::string_view text) {
    const std::string upperText = text::upper(text);
    return text::isASCII(upperText) ? isASCIIGridsquare(upperText)
                                    : isGridsquare(text::characters(upperText));
}

bool ADIFValidator::isPlausibleCallsign(std::string_view text) {
    const std::string upperText = text::upper(text);
    bool hasLetter = false;
    bool hasDigit = false;
    if (text::isASCII(upperText)) {
        for (const char c : upperText) {
            hasLetter = hasLetter || text::isASCIIUpper(c);
            hasDigit = hasDigit || text::isASCIIDigit(c);
            if (!text::isASCIIUpper(c) && !text::isASCIIDigit(c) && c != '/') {
                return false;
            }
        }
        return hasLetter && hasDigit && upperText.size() >= 3 && upperText.size() <= 12;
    }
    const std::vector<std::string_view> characters = text::characters(upperText);
    for (const std::string_view character : characters) {
        const bool isLetter = text::isLetter(character);
        const bool isNumeric = text::isNumeric(character);
        hasLetter = hasLetter || isLetter;
        hasDigit = hasDigit || isNumeric;
        if (!isLetter && !isNumeric && character != "/") {
            return false;
        }
    }
    return hasLetter && hasDigit && characters.size() >= 3 && characters.size() <= 12;
}

}  // namespace tallyrig
