// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFRecord.h"
#include "Tallyrig/Log/PerTag.h"
#include "Tallyrig/Text/Text.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tallyrig {

/// The values of a few fields of one record after the other: what `record[name]` gives, without comparing
/// names record by record. Nearly all records of a log have the same fields in the same order, so that where
/// the names stand is known from the records before.
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
    /// The value of the name at `index` in that record, absent if it has no such field. To be asked only
    /// after the first `read`, as what follows.
    std::optional<std::string_view> operator[](std::size_t index) const {
        const Position position = positions[index];
        return position == absent ? std::nullopt : std::optional(stored->value(position));
    }
    std::string_view valueOrEmpty(std::size_t index) const {
        const Position position = positions[index];
        return position == absent ? std::string_view() : stored->value(position);
    }
    /// The value without white space and line ends around it, empty if the record has no such field.
    std::string_view trimmed(std::size_t index) const { return text::trimmed(valueOrEmpty(index)); }

  private:
    using Position = std::uint32_t;
    static constexpr Position absent = std::numeric_limits<Position>::max();

    /// Where the names stand in the records whose fields begin with these tags, in this order. What follows
    /// matters only if a name is not among them.
    struct Shape {
        const FieldTags* tags = nullptr;
        std::vector<FieldTags::Number> tagNumbers;
        bool isWhole = false;             ///< No field follows.
        std::vector<Position> positions;  ///< Of the first field of each name.

        bool isOf(const RecordStorage& record) const;
    };

    void learn(Shape& shape, const RecordStorage& record);
    std::size_t indexOf(const FieldTag& tag) const;

    std::vector<std::string> names;  ///< In upper case, all different.
    PerTag<std::size_t> indices;     ///< The number of names where a tag is none of them.
    std::array<Shape, 8> shapes;     ///< The last one met of each number of fields, modulo their own number.

    // Of the record at hand.
    const RecordStorage* stored = nullptr;
    const Position* positions = nullptr;
};

}  // namespace tallyrig
