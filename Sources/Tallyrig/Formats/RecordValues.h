#pragma once

#include "Tallyrig/Log/ADIFRecord.h"
#include "Tallyrig/Validation/PerTag.h"

#include <cstddef>
#include <initializer_list>
#include <optional>
#include <string_view>
#include <vector>

namespace tallyrig {

/// The values of a few fields of one record after the other: what `record[name]` gives, for as much as one
/// look-up costs.
class RecordValues {
  public:
    /// The names outlive this.
    explicit RecordValues(std::initializer_list<std::string_view> upperNames);

    /// Turns to `record`, which has to stay for as long as its values are asked for.
    void read(const ADIFRecord& record);
    /// The value of the name at `index`, absent if the record has no such field.
    std::optional<std::string_view> operator[](std::size_t index) const { return values[index]; }
    std::string_view valueOrEmpty(std::size_t index) const {
        return values[index].value_or(std::string_view());
    }

  private:
    std::size_t indexOf(const FieldTag& tag) const;

    std::vector<std::string_view> names;
    std::vector<std::optional<std::string_view>> values;
    PerTag<std::size_t> indices;  ///< The number of names where a tag is none of them.
};

}  // namespace tallyrig
