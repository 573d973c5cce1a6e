// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Contest/DuplicateSearch.h"

namespace tallyrig {

namespace {

constexpr char separator = '\x1F';

}  // namespace

DuplicateSearch::DuplicateSearch(const ContestRules& contestRules, const ADIFRecordList& records)
    : rules(contestRules),
      record(records.begin()),
      end(records.end()),
      keys(rules.dupeFields.empty() ? 0 : records.size()) {
    for (const UpperText& field : rules.dupeFields) {
        dupeFields.push_back(fields.add(field));
    }
    if (rules.dupeBands) {
        bandField = fields.add("BAND");
    }
}

void DuplicateSearch::searchBlock() {
    next = 0;
    if (dupeFields.empty()) {
        return;
    }
    std::size_t size = 0;
    for (; size < blockSize && record != end; ++size, ++record) {
        fields.read(*record);
        isDuplicate[size] = readsKey();
    }
    for (std::size_t place = 0; place < size; ++place) {
        isDuplicate[place] = isDuplicate[place] && !keys.addNext().isNew;
    }
}

/// Puts the key of the record at hand into the queue; false if it is on a band without duplicates.
bool DuplicateSearch::readsKey() {
    if (rules.dupeBands && !rules.dupeBands->contains(fields.upper(bandField))) {
        return false;
    }
    for (const std::size_t field : dupeFields) {
        keys.append(fields.key(field));
        keys.append(separator);
    }
    keys.enqueue();
    return true;
}

}  // namespace tallyrig
