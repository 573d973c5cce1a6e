// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/CrossCheck/ExchangeCheck.h"

#include "Tallyrig/Text/ASCII.h"
#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/Numbers.h"
#include "Tallyrig/Text/Pieces.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <utility>

namespace tallyrig {

namespace {

using Words = std::span<const std::string_view>;

/// A number without its leading zeros, any other word as it is.
std::string_view withoutZeros(std::string_view word) {
    if (word.size() < 2 || word.front() != '0' || !std::ranges::all_of(word, text::isASCIIDigit) ||
        !text::integer(word)) {
        return word;
    }
    return word.substr(std::min(word.find_first_not_of('0'), word.size() - 1));
}

/// The words of an exchange. They refer to it or to `buffer`.
std::vector<std::string_view> wordsOf(std::string_view exchange, std::string& buffer) {
    std::vector<std::string_view> words;
    text::forEachPiece(text::upper(exchange, buffer), ' ', [&](std::string_view piece) {
        text::forEachPiece(piece, '\t', [&](std::string_view word) { words.push_back(withoutZeros(word)); });
    });
    return words;
}

/// 59, 599 and 59A are reports; 69, 5, 5999 and 59AB are none.
bool isReport(std::string_view word) {
    const std::string digits = text::numericCharacters(word);
    const std::size_t count = text::characterCount(digits);
    return (count == 2 || count == 3) && digits.front() >= '1' && digits.front() <= '5' &&
           text::characterCount(word) <= count + 1;
}

Words withoutReport(Words words) {
    return words.size() >= 2 && isReport(words.front()) ? words.subspan(1) : words;
}

/// Compares the fields of an exchange one after the other and notes what differs.
class Comparison {
  public:
    Comparison(const QSOValues& receivedValues, const QSOValues& sentValues)
        : receivedFields(receivedValues), sentFields(sentValues) {}

    /// Returns whether both sides have something to compare.
    bool compare(QSOField received, QSOField sent, std::string_view label) {
        const std::string_view left = text::trimmedOfBlanks(receivedFields[received]);
        const std::string_view right = text::trimmedOfBlanks(sentFields[sent]);
        if (left.empty() || right.empty()) {
            return false;
        }
        if (!exchangeEqual(left, right)) {
            note(label, left, right);
        }
        return true;
    }

    /// One log may keep as text what the other keeps as a number.
    void compareAcross() {
        const std::string_view left = firstOf(receivedFields, QSOField::srxString, QSOField::srx);
        const std::string_view right = firstOf(sentFields, QSOField::stxString, QSOField::stx);
        if (!left.empty() && !right.empty() && !exchangeEqual(left, right)) {
            note("Austausch", left, right);
        }
    }

    /// Four characters agree with the six that begin with them.
    void compareLocators() {
        constexpr std::size_t least = 4;
        std::string receivedBuffer;
        std::string sentBuffer;
        const std::string_view left =
            text::upper(text::trimmedOfBlanks(receivedFields[QSOField::gridSquare]), receivedBuffer);
        const std::string_view right =
            text::upper(text::trimmedOfBlanks(sentFields[QSOField::myGridSquare]), sentBuffer);
        if (left.empty() || right.empty() || left == right) {
            return;
        }
        const std::size_t shorter = std::min(text::characterCount(left), text::characterCount(right));
        if (shorter >= least &&
            !text::equal(text::firstCharacters(left, shorter), text::firstCharacters(right, shorter))) {
            note("Locator", left, right);
        }
    }

    std::vector<std::string> takeNotes() { return std::move(notes); }

  private:
    static std::string_view firstOf(const QSOValues& values, QSOField first, QSOField second) {
        return values[first].empty() ? values[second] : values[first];
    }

    void note(std::string_view label, std::string_view left, std::string_view right) {
        std::string& note = notes.emplace_back(label);
        note.append(": empfangen ").append(left).append(", gesendet ").append(right);
    }

    const QSOValues& receivedFields;
    const QSOValues& sentFields;
    std::vector<std::string> notes;
};

}  // namespace

std::vector<std::string> exchangeMismatches(const QSOValues& received, const QSOValues& sent, bool checkRST) {
    Comparison comparison(received, sent);
    const bool hasText = comparison.compare(QSOField::srxString, QSOField::stxString, "Austausch");
    const bool hasNumber = comparison.compare(QSOField::srx, QSOField::stx, "Nummer");
    if (checkRST) {
        comparison.compare(QSOField::rstReceived, QSOField::rstSent, "RST");
    }
    if (!hasText && !hasNumber) {
        comparison.compareAcross();
    }
    comparison.compareLocators();
    return comparison.takeNotes();
}

bool exchangeEqual(std::string_view left, std::string_view right) {
    if (left == right) {
        return true;
    }
    std::string leftBuffer;
    std::string rightBuffer;
    const auto leftWords = wordsOf(left, leftBuffer);
    const auto rightWords = wordsOf(right, rightBuffer);
    return std::ranges::equal(leftWords, rightWords, text::equal) ||
           std::ranges::equal(withoutReport(leftWords), withoutReport(rightWords), text::equal);
}

}  // namespace tallyrig
