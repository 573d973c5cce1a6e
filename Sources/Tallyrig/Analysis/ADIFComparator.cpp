// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Analysis/ADIFComparator.h"

#include "Tallyrig/Analysis/FieldDifferences.h"
#include "Tallyrig/Log/FoldedValues.h"
#include "Tallyrig/Log/RecordValues.h"
#include "Tallyrig/Text/KeyNumbers.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <iterator>
#include <limits>
#include <optional>
#include <unordered_map>
#include <utility>

namespace tallyrig {

namespace {

/// The position of a record; a log of more does not fit into memory.
using Number = std::uint32_t;
constexpr Number none = std::numeric_limits<Number>::max();

constexpr char keySeparator = '\x1F';

/// Pairs the records of two logs by their keys.
class Pairing {
  public:
    Pairing(const std::vector<std::string>& keyFields, const ADIFRecordList& left,
            const ADIFRecordList& right)
        : keys(right.size()), nextRight(right.size(), none) {
        for (const std::string& field : keyFields) {
            parts.push_back(values.add(field));
        }
        queues.reserve(right.size());
        queueRight(right);
        pairLeft(left);
    }

    /// By position of the left record that of its partner, or `none`.
    std::vector<Number> partners;

  private:
    static constexpr std::size_t mostWaiting = 64;

    /// The right records of one key that have no partner yet: a chain through `nextRight`, in order of
    /// appearance.
    struct Queue {
        Number first = none;
        Number last = none;
    };

    /// Calls `visit` with the key number of one record after the other.
    template <typename Visit>
    void forEachKey(const ADIFRecordList& records, Visit visit) {
        std::size_t waiting = 0;
        const auto visitWaiting = [&] {
            for (; waiting > 0; --waiting) {
                visit(keys.addNext());
            }
        };
        for (const ADIFRecord& record : records) {
            values.read(record);
            for (const std::size_t part : parts) {
                keys.append(folded.piece(text::trimmedOfBlanks(values.valueOrEmpty(part))));
                keys.append(keySeparator);
            }
            keys.enqueue();
            if (++waiting == mostWaiting) {
                visitWaiting();
            }
        }
        visitWaiting();
    }

    void queueRight(const ADIFRecordList& right) {
        Number record = 0;
        forEachKey(right, [&](KeyNumbers::Entry key) {
            if (key.isNew) {
                queues.push_back({record, record});
            } else {
                Queue& queue = queues[key.number];
                nextRight[queue.last] = record;
                queue.last = record;
            }
            ++record;
        });
    }

    void pairLeft(const ADIFRecordList& left) {
        partners.reserve(left.size());
        forEachKey(left, [&](KeyNumbers::Entry key) {
            // A key of left records alone has a number behind all queues.
            Number partner = none;
            if (key.number < queues.size() && queues[key.number].first != none) {
                partner = queues[key.number].first;
                queues[key.number].first = nextRight[partner];
            }
            partners.push_back(partner);
        });
    }

    RecordValues values;
    std::vector<std::size_t> parts;
    FoldedValues folded;
    KeyNumbers keys;
    std::vector<Queue> queues;  ///< By number of the key.
    std::vector<Number> nextRight;
};

/// Walks the records of a list, fast where the positions asked for ascend by one.
class RecordCursor {
  public:
    explicit RecordCursor(const ADIFRecordList& list) : records(list), next(list.begin()) {}

    const ADIFRecord& at(Number position) {
        if (position != nextPosition) {
            next = records.at(position);
        }
        nextPosition = position + 1;
        const ADIFRecord& record = *next;
        ++next;
        return record;
    }

  private:
    const ADIFRecordList& records;
    ADIFRecordList::Iterator next;
    Number nextPosition = 0;
};

/// Each name once.
std::vector<std::string> inTextOrder(std::vector<std::string> names) {
    std::ranges::sort(names, [](const std::string& left, const std::string& right) {
        return text::compare(left, right) < 0;
    });
    names.erase(std::unique(names.begin(), names.end(), text::equal), names.end());
    return names;
}

/// As they stand, one record after the other.
std::vector<std::string> fieldNames(std::initializer_list<const ADIFRecord*> records) {
    std::vector<std::string> names;
    for (const ADIFRecord* record : records) {
        for (const ADIFFieldView& field : record->fields()) {
            names.emplace_back(field.name);
        }
    }
    return names;
}

/// The names of the fields in a record before and after it was changed, without those that records in front
/// of it have. If these are the same in the same order, so are the columns.
class NewNames {
  public:
    NewNames(const ADIFRecord& before, const ADIFRecord& after)
        : namesBefore(fieldNames({&before})), namesAfter(fieldNames({&after})) {}

    bool areSame() const { return namesBefore == namesAfter; }
    /// Takes out what the first `count` of the records have, until that is so. Most names stand in the first
    /// records of a log already.
    void takeOut(const ADIFRecordList& records, std::size_t count) {
        for (auto record = records.begin(); count > 0 && !areSame(); ++record, --count) {
            const auto isInRecord = [&](const std::string& name) { return record->has(name); };
            std::erase_if(namesBefore, isInRecord);
            std::erase_if(namesAfter, isInRecord);
        }
    }

  private:
    std::vector<std::string> namesBefore;
    std::vector<std::string> namesAfter;
};

std::vector<ADIFComparison::HeaderDiff> headerDiffs(const std::vector<ADIFField>& left,
                                                    const std::vector<ADIFField>& right) {
    std::vector<ADIFComparison::HeaderDiff> all;
    std::unordered_map<std::string, std::size_t> placeByName;
    const auto add = [&](const ADIFField& field,
                         std::optional<std::string> ADIFComparison::HeaderDiff::*side) {
        const auto [place, isNew] = placeByName.try_emplace(text::canonicalKey(field.name), all.size());
        if (isNew) {
            all.push_back({field.name, std::nullopt, std::nullopt});
        }
        if (auto& value = all[place->second].*side; !value) {
            value = field.value;
        }
    };
    for (const ADIFField& field : left) {
        add(field, &ADIFComparison::HeaderDiff::left);
    }
    for (const ADIFField& field : right) {
        add(field, &ADIFComparison::HeaderDiff::right);
    }
    std::erase_if(all, [](const ADIFComparison::HeaderDiff& diff) {
        return text::equal(diff.left.value_or(""), diff.right.value_or(""));
    });
    return all;
}

}  // namespace

ADIFComparator::ADIFComparator(const std::vector<std::string>& fields) {
    std::ranges::transform(fields, std::back_inserter(keyFields),
                           [](const std::string& field) { return text::upper(field); });
}

std::string ADIFComparator::key(const ADIFRecord& record) const {
    std::string result;
    for (const std::string& field : keyFields) {
        if (&field != keyFields.data()) {
            result += keySeparator;
        }
        result += text::upper(text::trimmedOfBlanks(record.valueOrEmpty(field)));
    }
    return result;
}

ADIFComparison ADIFComparator::compare(const ADIFDocument& left, const ADIFDocument& right) const {
    ADIFComparison result;
    result.columnNames = columns(left, right);
    result.headerDifferences = headerDiffs(left.headerFields(), right.headerFields());
    result.names = inTextOrder(result.columnNames);

    FieldDifferences differences(result.names);
    KeyNumbers sets;
    sets.add();
    std::vector<bool> isPaired(right.records().size());
    RecordCursor rightRecords(right.records());
    std::vector<Number> partners = Pairing(keyFields, left.records(), right.records()).partners;
    result.leftRows.reserve(partners.size());
    auto leftRecord = left.records().begin();
    for (const Number partner : partners) {
        ADIFComparison::LeftRow& row = result.leftRows.emplace_back();
        if (partner != none) {
            row.right = partner;
            isPaired[partner] = true;
            const auto differing = differences.between(*leftRecord, rightRecords.at(partner));
            if (!differing.empty()) {
                const KeyNumbers::Entry set =
                    sets.add({reinterpret_cast<const char*>(differing.data()), differing.size_bytes()});
                row.differingSet = set.isNew ? result.addSet(differing) : static_cast<Number>(set.number);
            }
        }
        ++leftRecord;
    }
    for (Number record = 0; record < isPaired.size(); ++record) {
        if (!isPaired[record]) {
            result.rightOnly.push_back(record);
        }
    }
    for (std::size_t row = 0; row < result.rowCount(); ++row) {
        const ADIFComparison::Status status = result.row(row).status();
        ++result.countOf(status);
        if (status != ADIFComparison::Status::equal) {
            result.unequalRows.push_back(static_cast<Number>(row));
        }
    }
    return result;
}

bool ADIFComparator::refresh(ADIFComparison& comparison, const ADIFDocument& left, const ADIFDocument& right,
                             const Edit& edit) const {
    const ADIFComparison::Row row = comparison.row(edit.row);
    const bool isLeft = edit.side == ADIFComparison::Side::left;
    const ADIFRecord& after = isLeft ? left.records()[*row.left()] : right.records()[*row.right()];
    if (!text::equal(key(edit.before), key(after))) {
        return false;
    }
    NewNames names(edit.before, after);
    names.takeOut(left.records(), isLeft ? *row.left() : left.records().size());
    names.takeOut(right.records(), isLeft ? 0 : *row.right());
    if (!names.areSame()) {
        comparison.columnNames = columns(left, right);
    }
    if (row.left() && row.right()) {
        const ADIFRecord& leftRecord = left.records()[*row.left()];
        const ADIFRecord& rightRecord = right.records()[*row.right()];
        const std::vector<std::string> pairNames = inTextOrder(fieldNames({&leftRecord, &rightRecord}));
        FieldDifferences differences(pairNames);
        std::vector<std::string_view> differing;
        for (const Number number : differences.between(leftRecord, rightRecord)) {
            differing.push_back(pairNames[number]);
        }
        comparison.setDifferingFields(edit.row, differing);
    }
    return true;
}

std::vector<std::string> ADIFComparator::columns(const ADIFDocument& left, const ADIFDocument& right) const {
    std::vector<std::string> occurring = left.fieldNames();
    std::ranges::move(right.fieldNames(), std::back_inserter(occurring));
    std::unordered_map<std::string, bool> isColumn;
    for (const std::string& name : occurring) {
        isColumn.try_emplace(text::canonicalKey(name));
    }
    std::vector<std::string> result;
    const auto add = [&](const std::string& name) {
        const auto place = isColumn.find(text::canonicalKey(name));
        if (place != isColumn.end() && !std::exchange(place->second, true)) {
            result.push_back(name);
        }
    };
    std::ranges::for_each(keyFields, add);
    std::ranges::for_each(occurring, add);
    return result;
}

}  // namespace tallyrig
