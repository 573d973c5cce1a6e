#pragma once

#include "Tallyrig/Log/ADIFRecord.h"
#include "Tallyrig/Validation/PerTag.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tallyrig {

/// A few columns of a log, read from one record after the other. Gives what `record[name]` gives, trimmed,
/// without comparing names record by record.
class RecordColumns {
  public:
    /// Adds a column, before the first record is read; the position by which `value` knows it. The name is
    /// upper-cased here.
    std::size_t add(std::string_view name);

    /// Turns to `record`, which has to stay for as long as its values are asked for.
    void read(const ADIFRecord& record);
    /// The trimmed value of the first field of that name in the record at hand, empty if it has none.
    std::string_view value(std::size_t column) const { return values[column]; }

  private:
    std::size_t columnOf(const FieldTag& tag) const;

    std::vector<std::string> names;
    std::vector<std::string_view> values;  ///< By column; without data where no field has been met.
    PerTag<std::size_t> columns;           ///< By tag; the number of columns where it is none of them.
};

}  // namespace tallyrig
