// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFRecordBuilder.h"

#include <string_view>

namespace tallyrig {

/// Makes the records of a contest log from the columns of its lines. An empty column makes no field. Plain
/// ASCII, as nearly every column is, is handled without the Unicode tables, with the same result.
class ColumnRecordBuilder : public ADIFRecordBuilder {
  public:
    void addColumn(FieldTags::Number tag, std::string_view column) {
        if (!column.empty()) {
            addField(tag, column);
        }
    }
    /// The column in upper case.
    void addUpper(FieldTags::Number tag, std::string_view column);
    /// As `timeOfColumn` has it.
    void addTime(FieldTags::Number tag, std::string_view column);
    /// A number without its leading zeros; 0 for what is no integer of 64 bits, nothing for nothing.
    void addSerial(FieldTags::Number tag, std::string_view column);
};

/// The fields made of one column, kept for the next lines: a station stays on its frequency for a while, and
/// on most days it makes more than one QSO.
class RepeatedColumn {
  public:
    /// Adds to `builder` the fields of `column`: calls `add` for them, or adds once more those of the last
    /// call if it was for an equal column. `builder` is always the same; `column` stays until the next call.
    template <typename Add>
    void addTo(ColumnRecordBuilder& builder, std::string_view column, const Add& add) {
        if (isFilled && column == lastColumn) {
            builder.addRun(fields);
            return;
        }
        const std::size_t firstField = builder.fieldCount();
        add(column);
        builder.copyFields(firstField, fields);
        lastColumn = column;
        isFilled = true;
    }

  private:
    bool isFilled = false;
    std::string_view lastColumn;
    ADIFRecordBuilder::Run fields;
};

}  // namespace tallyrig
