#pragma once

#include "Tallyrig/Log/ADIFRecord.h"
#include "Tallyrig/Log/PerTag.h"
#include "Tallyrig/Text/Text.h"

#include <cstddef>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tallyrig {

/// The values of a few fields of one record after the other: what `record[name]` gives, without comparing
/// names record by record.
///
/// What it learns of a log it keeps by address (`PerTag`): it must not outlive the document, nor serve
/// another one when that is gone.
class RecordValues {
  public:
    RecordValues() = default;
    /// The position of each name is its index.
    explicit RecordValues(std::initializer_list<std::string_view> fieldNames);

    /// Adds a name, before the first record is read; the index by which its value is known.
    std::size_t add(std::string_view name);

    /// Turns to `record`, which has to stay for as long as its values are asked for.
    void read(const ADIFRecord& record);
    /// The value of the name at `index`, absent if the record has no such field.
    std::optional<std::string_view> operator[](std::size_t index) const { return values[index]; }
    std::string_view valueOrEmpty(std::size_t index) const {
        return values[index].value_or(std::string_view());
    }
    /// The value without white space and line ends around it, empty if the record has no such field.
    std::string_view trimmed(std::size_t index) const { return text::trimmed(valueOrEmpty(index)); }

  private:
    std::size_t indexOf(const FieldTag& tag) const;

    std::vector<std::string> names;  ///< In upper case, all different.
    std::vector<std::optional<std::string_view>> values;
    PerTag<std::size_t> indices;  ///< The number of names where a tag is none of them.
};

}  // namespace tallyrig
