// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/RecordChanges.h"

#include <cstddef>

namespace quillon {

namespace {

using tallyrig::ADIFFields;
using tallyrig::ADIFFieldView;
using tallyrig::ADIFRecord;
using tallyrig::ADIFRecordList;

bool areSame(const ADIFFieldView& left, const ADIFFieldView& right) {
    return left.name == right.name && left.value == right.value;
}

/// The name of the first field that differs; where one of the two ends, of the first that is left over.
std::string differingField(const ADIFRecord& before, const ADIFRecord& after) {
    const ADIFFields old = before.fields();
    const ADIFFields now = after.fields();
    std::size_t index = 0;
    while (index < old.size() && index < now.size() && areSame(old[index], now[index])) {
        ++index;
    }
    // A field that is gone is told by its own name and not by that of the one that took its place.
    const ADIFFields& longer = old.size() > now.size() ? old : now;
    return index < longer.size() ? std::string(longer[index].name) : std::string();
}

}  // namespace

RecordChanges changesBetween(const ADIFRecordList& before, const ADIFRecordList& after) {
    RecordChanges changes;
    auto old = before.begin();
    for (auto now = after.begin(); now != after.end(); ++now) {
        // What two copies of a list share lies in one place, so that it need not be looked into.
        if (old != before.end() && &*old == &*now) {
            ++old;
            continue;
        }
        if (old == before.end() || old->id() != now->id()) {
            const auto place = before.indexOf(now->id());
            if (!place) {
                changes.records.push_back(now->id());
                continue;
            }
            old = before.at(*place);  // Those up to here were removed.
        }
        if (!old->isSameAs(*now)) {
            if (changes.records.empty()) {
                changes.fieldName = differingField(*old, *now);
            }
            changes.records.push_back(now->id());
        }
        ++old;
    }
    return changes;
}

}  // namespace quillon
