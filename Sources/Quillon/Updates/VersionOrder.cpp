// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Updates/VersionOrder.h"

#include "Tallyrig/Text/ASCII.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <string>

namespace quillon {

namespace {

bool beginsWithDigit(std::string_view text) {
    return !text.empty() && tallyrig::text::isASCIIDigit(text.front());
}

/// Takes the digits at the front of `rest` away, and returns them without leading zeros.
std::string_view takeNumber(std::string_view& rest) {
    const auto end = std::ranges::find_if_not(rest, tallyrig::text::isASCIIDigit);
    std::string_view number(rest.begin(), end);
    rest.remove_prefix(number.size());
    number.remove_prefix(std::min(number.find_first_not_of('0'), number.size()));
    return number;
}

std::weak_ordering compareNumbers(std::string_view left, std::string_view right) {
    return left.size() != right.size() ? left.size() <=> right.size() : left <=> right;
}

}  // namespace

std::weak_ordering compareVersions(std::string_view left, std::string_view right) {
    const std::string leftKey = tallyrig::text::canonicalKey(left);
    const std::string rightKey = tallyrig::text::canonicalKey(right);
    std::string_view leftRest = leftKey;
    std::string_view rightRest = rightKey;
    while (!leftRest.empty() && !rightRest.empty()) {
        if (beginsWithDigit(leftRest) && beginsWithDigit(rightRest)) {
            const std::string_view leftNumber = takeNumber(leftRest);
            if (const auto order = compareNumbers(leftNumber, takeNumber(rightRest)); order != 0) {
                return order;
            }
        } else if (leftRest.front() == rightRest.front()) {
            leftRest.remove_prefix(1);
            rightRest.remove_prefix(1);
        } else {
            // The bytes of UTF-8, taken without a sign, have the order of the characters.
            return static_cast<unsigned char>(leftRest.front()) <=>
                   static_cast<unsigned char>(rightRest.front());
        }
    }
    return leftRest.size() <=> rightRest.size();
}

}  // namespace quillon
