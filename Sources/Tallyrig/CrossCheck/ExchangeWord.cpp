// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/CrossCheck/ExchangeWord.h"

#include "Tallyrig/Text/ASCII.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>

namespace tallyrig {

namespace {

/// Set where the sender has a number only, or the receiver a text beside the number: then the two numbers are
/// compared, and the word holds the receiver's text.
constexpr std::uint64_t numberClash = std::uint64_t{1} << 60U;
/// Set where there is a locator: two are compared on their own.
constexpr std::uint64_t locatorClash = std::uint64_t{1} << 61U;

/// A text in a word: the characters six bits each, letters in one case.
class Packing {
  public:
    /// A number without leading zeros.
    void add(std::string_view text) {
        if (text.starts_with('0') && std::ranges::all_of(text, text::isASCIIDigit)) {
            text.remove_prefix(std::min(text.find_first_not_of('0'), text.size() - 1));
        }
        isWhole = isWhole && !text.empty();
        for (const char c : text) {
            // From the blank, which is 0 but never the first, to the circumflex.
            addCode(static_cast<std::uint64_t>(static_cast<unsigned char>(text::upperASCII(c))) - ' ');
            isWhole = isWhole && (word & separator) != separator;
        }
    }
    void addSeparator() { addCode(separator); }

    /// 0 if a text was empty or all was too long.
    std::uint64_t result() const { return isWhole ? word : 0; }

  private:
    static constexpr unsigned bits = 6;
    static constexpr std::uint64_t separator = (1U << bits) - 1;

    void addCode(std::uint64_t code) {
        isWhole = isWhole && code <= separator && ++length <= most;
        word = word << bits | code;
    }

    static constexpr std::size_t most = 10;
    std::uint64_t word = 0;
    std::size_t length = 0;
    bool isWhole = true;
};

/// A text and a number as one side has them, and their word.
struct Exchange {
    std::string_view text;
    std::string_view number;
    std::uint64_t word = 0;  ///< Of the text, or else of the number; 0 if there is none for it.

    Exchange(std::string_view textValue, std::string_view numberValue, std::optional<std::string_view> report)
        : text(text::trimmedOfBlanks(textValue)), number(text::trimmedOfBlanks(numberValue)) {
        if (text.empty() != textValue.empty() || number.empty() != numberValue.empty()) {
            // There is something, but nothing to read.
            return;
        }
        Packing packing;
        packing.add(text.empty() ? number : text);
        if (report) {
            packing.addSeparator();
            packing.add(text::trimmedOfBlanks(*report));
        }
        word = packing.result();
    }
};

std::optional<std::string_view> valueIf(bool isWanted, std::string_view value) {
    return isWanted ? std::optional(value) : std::nullopt;
}

}  // namespace

std::uint64_t exchangeWord::ofSent(const QSOValues& values, bool withReport) {
    const Exchange exchange(values[QSOField::stxString], values[QSOField::stx],
                            valueIf(withReport, values[QSOField::rstSent]));
    const bool hasText = !exchange.text.empty();
    if (exchange.word == 0 || (hasText && !exchange.number.empty())) {
        return unknownSent;
    }
    return exchange.word | (hasText ? 0 : numberClash) |
           (values[QSOField::myGridSquare].empty() ? 0 : locatorClash);
}

std::uint64_t exchangeWord::ofReceived(const QSOValues& values, bool withReport) {
    const Exchange exchange(values[QSOField::srxString], values[QSOField::srx],
                            valueIf(withReport, values[QSOField::rstReceived]));
    if (exchange.word == 0) {
        return unknownReceived;
    }
    return exchange.word | (!exchange.text.empty() && !exchange.number.empty() ? numberClash : 0) |
           (values[QSOField::gridSquare].empty() ? 0 : locatorClash);
}

}  // namespace tallyrig
