// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Validation/DuplicateGroups.h"

#include "Tallyrig/Log/FoldedValues.h"
#include "Tallyrig/Log/RecordValues.h"
#include "Tallyrig/Text/KeyNumbers.h"

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

namespace tallyrig {

namespace {

/// The number of a record or a group; a log of more does not fit into memory.
using Number = std::uint32_t;

/// The key of one record after the other.
class KeyReader {
  public:
    explicit KeyReader(const std::vector<std::string>& keyFields) {
        for (const std::string& field : keyFields) {
            parts.push_back(values.add(field));
        }
    }

    /// Whether the record has a key, which then is `key`.
    bool read(const ADIFRecord& record) {
        values.read(record);
        key.clear();
        for (const std::size_t part : parts) {
            const std::string_view value = values.trimmed(part);
            if (value.empty()) {
                return false;
            }
            key += folded.piece(value);
            key += '\x1F';
        }
        return true;
    }

    std::string key;

  private:
    RecordValues values;
    std::vector<std::size_t> parts;
    FoldedValues folded;
};

/// Gathers records by key. The members of a group are a chain through `next`, so that the many records that
/// are alone with their key cost no list of their own.
class Gathering {
  public:
    explicit Gathering(std::size_t recordCount) : keys(recordCount), next(recordCount, none) {
        groups.reserve(recordCount);
    }

    /// `record` has this key. It waits for `gather`.
    void add(Number record, std::string_view key) {
        keys.append(key);
        keys.enqueue();
        waiting.push_back(record);
        if (waiting.size() == mostWaiting) {
            gather();
        }
    }

    /// Puts the records that wait into their groups.
    void gather() {
        for (const Number record : waiting) {
            const KeyNumbers::Entry entry = keys.addNext();
            if (entry.isNew) {
                groups.push_back({record, record, 1});
                continue;
            }
            Group& group = groups[entry.number];
            next[group.last] = record;
            group.last = record;
            ++group.count;
        }
        waiting.clear();
    }

    /// None waits.
    std::vector<std::vector<std::size_t>> groupsOfSeveral() const {
        std::vector<std::vector<std::size_t>> result;
        for (const Group& group : groups) {
            if (group.count < 2) {
                continue;
            }
            std::vector<std::size_t>& members = result.emplace_back();
            members.reserve(group.count);
            for (Number record = group.first; record != none; record = next[record]) {
                members.push_back(record);
            }
        }
        return result;
    }

  private:
    static constexpr Number none = std::numeric_limits<Number>::max();
    static constexpr std::size_t mostWaiting = 64;

    struct Group {
        Number first;
        Number last;
        Number count;
    };

    KeyNumbers keys;
    std::vector<Group> groups;  ///< By the number of the key, which is in the order of their first records.
    std::vector<Number> next;   ///< By record, the next of its group.
    std::vector<Number> waiting;
};

}  // namespace

std::vector<std::vector<std::size_t>> duplicateGroups(const ADIFRecordList& records,
                                                      const std::vector<std::string>& keyFields) {
    KeyReader reader(keyFields);
    Gathering gathering(records.size());
    Number index = 0;
    for (const ADIFRecord& record : records) {
        if (reader.read(record)) {
            gathering.add(index, reader.key);
        }
        ++index;
    }
    gathering.gather();
    return gathering.groupsOfSeveral();
}

}  // namespace tallyrig
