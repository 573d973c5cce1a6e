// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Validation/OtherRecordNumbers.h"

#include <algorithm>
#include <utility>

namespace tallyrig {

OtherRecordNumbers::OtherRecordNumbers(std::initializer_list<std::size_t> numbers)
    : group(std::make_shared<const std::vector<std::size_t>>(numbers)), own(numbers.size()) {}

OtherRecordNumbers::OtherRecordNumbers(std::shared_ptr<const std::vector<std::size_t>> wholeGroup,
                                       std::size_t ownPosition)
    : group(std::move(wholeGroup)), own(ownPosition) {}

bool operator==(const OtherRecordNumbers& left, const OtherRecordNumbers& right) {
    if (left.group == right.group) {
        // Who leaves out another one of the same group names others.
        return left.own == right.own;
    }
    return std::equal(left.begin(), left.end(), right.begin(), right.end());
}

}  // namespace tallyrig
