#pragma once

#include "Tallyrig/Log/FieldTags.h"
#include "Tallyrig/Log/RecordStorage.h"

#include <array>
#include <cstddef>
#include <cstdint>
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

/// Finds these fields in the records of one log. Refers to the document and may be asked by several threads.
class QSOFields {
  public:
    QSOFields() = default;
    /// For records whose tags, as a rule, are `expected`: those with others take longer.
    explicit QSOFields(const FieldTags& expected) : tags(&expected), fields(fieldsByTag(expected)) {}

    void read(const RecordStorage& record, QSOValues& values) const;

  private:
    /// By tag number; `qsoFieldCount` for a tag that nobody asks for.
    using FieldsByTag = std::vector<std::uint8_t>;

    static FieldsByTag fieldsByTag(const FieldTags& tags);
    static void read(const RecordStorage& record, const FieldsByTag& fields, QSOValues& values);

    const FieldTags* tags = nullptr;
    FieldsByTag fields;
};

}  // namespace tallyrig
