// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Analysis/ADIFComparison.h"

#include "Tallyrig/Text/Text.h"

#include <algorithm>

namespace tallyrig {

bool ADIFComparison::FieldNames::contains(std::string_view name) const {
    return std::any_of(begin(), end(), [&](std::string_view other) { return text::equal(other, name); });
}

std::optional<std::size_t> ADIFComparison::Row::left() const {
    return index < comparison->leftRows.size() ? std::optional(index) : std::nullopt;
}

std::optional<std::size_t> ADIFComparison::Row::right() const {
    const std::size_t leftCount = comparison->leftRows.size();
    const Number right =
        index < leftCount ? comparison->leftRows[index].right : comparison->rightOnly[index - leftCount];
    return right == none ? std::nullopt : std::optional<std::size_t>(right);
}

ADIFComparison::Status ADIFComparison::Row::status() const {
    if (index >= comparison->leftRows.size()) {
        return Status::onlyRight;
    }
    const LeftRow& row = comparison->leftRows[index];
    if (row.right == none) {
        return Status::onlyLeft;
    }
    return row.differingSet == 0 ? Status::equal : Status::differs;
}

ADIFComparison::FieldNames ADIFComparison::Row::differingFields() const {
    const Number set =
        index < comparison->leftRows.size() ? comparison->leftRows[index].differingSet : Number{0};
    return {comparison->names.data(), comparison->differingSet(set)};
}

std::optional<std::size_t> ADIFComparison::nextDifference(std::size_t row) const {
    const auto next = std::ranges::upper_bound(unequalRows, row);
    return next == unequalRows.end() ? std::nullopt : std::optional<std::size_t>(*next);
}

std::optional<std::size_t> ADIFComparison::previousDifference(std::size_t row) const {
    const auto notBefore = std::ranges::lower_bound(unequalRows, row);
    return notBefore == unequalRows.begin() ? std::nullopt : std::optional<std::size_t>(notBefore[-1]);
}

ADIFComparison::Number ADIFComparison::addSet(std::span<const Number> members) {
    setMembers.insert(setMembers.end(), members.begin(), members.end());
    setBegins.push_back(setMembers.size());
    return static_cast<Number>(setBegins.size() - 2);
}

void ADIFComparison::setDifferingFields(std::size_t row, std::span<const std::string_view> fields) {
    const FieldNames known = this->row(row).differingFields();
    if (std::ranges::equal(known, fields, text::equal)) {
        return;
    }
    const Status before = this->row(row).status();
    std::vector<Number> numbers;
    for (const std::string_view field : fields) {
        const auto place =
            std::ranges::find_if(names, [&](const std::string& name) { return text::equal(name, field); });
        numbers.push_back(static_cast<Number>(place - names.begin()));
        if (place == names.end()) {
            names.emplace_back(field);
        }
    }
    leftRows[row].differingSet = fields.empty() ? 0 : addSet(numbers);
    const Status after = this->row(row).status();
    if (after != before) {
        --countOf(before);
        ++countOf(after);
        const auto place = std::ranges::lower_bound(unequalRows, row);
        if (after == Status::equal) {
            unequalRows.erase(place);
        } else {
            unequalRows.insert(place, static_cast<Number>(row));
        }
    }
}

std::size_t& ADIFComparison::countOf(Status status) {
    switch (status) {
        case Status::equal:
            return rowCounts.equal;
        case Status::differs:
            return rowCounts.differs;
        case Status::onlyLeft:
            return rowCounts.onlyLeft;
        case Status::onlyRight:
            break;
    }
    return rowCounts.onlyRight;
}

}  // namespace tallyrig
