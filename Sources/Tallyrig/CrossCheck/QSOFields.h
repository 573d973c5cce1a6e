// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/FieldTags.h"
#include "Tallyrig/Log/RecordStorage.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <set>
#include <string_view>
#include <vector>

namespace tallyrig {

/// The fields that a cross-check reads.
enum class QSOField : std::uint8_t {
    call,
    band,
    mode,
    date,
    time,
    stationCallsign,
    srxString,
    srx,
    rstReceived,
    gridSquare,
    stxString,
    stx,
    rstSent,
    myGridSquare,
};
inline constexpr std::size_t qsoFieldCount = 14;

/// Their values in one record, empty where it has none. They refer to the record.
class QSOValues {
  public:
    std::string_view operator[](QSOField field) const { return values[static_cast<std::size_t>(field)]; }

  private:
    friend class QSOFields;

    std::array<std::string_view, qsoFieldCount> values;
};

/// Finds these fields in the records of one log. Refers to the document and to one of the tables, and may be
/// asked by several threads.
class QSOFields {
  public:
    /// For each tag by its number which field it is, `qsoFieldCount` if it is none of them.
    using Table = std::vector<std::uint16_t>;
    using Tables = std::set<Table>;

    QSOFields() = default;
    /// For records with these tags; those with others take longer. Most logs of one contest share a table.
    QSOFields(const FieldTags& expected, Tables& tables)
        : tags(&expected), table(&*tables.insert(tableOf(expected)).first) {}

    bool expects(const RecordStorage& record) const { return &record.tags() == tags; }
    /// Says that all records to be read are as expected, so that none is asked: its tags lie far from it.
    void expectAll() { areAllExpected = true; }

    void read(const RecordStorage& record, QSOValues& values) const;

  private:
    static Table tableOf(const FieldTags& tags);
    static void read(const RecordStorage& record, const Table& fields, QSOValues& values);

    const FieldTags* tags = nullptr;
    const Table* table = nullptr;
    bool areAllExpected = false;
};

}  // namespace tallyrig
