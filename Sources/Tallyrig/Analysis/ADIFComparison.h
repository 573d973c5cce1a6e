// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tallyrig {

/// How the records of two logs pair up and in which fields the pairs differ: what `ADIFComparator` has found.
///
/// A value that refers to the records of the two documents by their positions and holds none of them; about
/// 12 bytes to a row. Views of it are good until it is changed or gone.
class ADIFComparison {
  public:
    enum class Status : std::uint8_t { equal, differs, onlyLeft, onlyRight };
    enum class Side : std::uint8_t { left, right };

    /// The number of rows of each status.
    struct Counts {
        std::size_t equal = 0;
        std::size_t differs = 0;
        std::size_t onlyLeft = 0;
        std::size_t onlyRight = 0;
        friend bool operator==(const Counts&, const Counts&) = default;
    };

    /// A header field with a value on each side that has it, verbatim.
    struct HeaderDiff {
        std::string field;
        std::optional<std::string> left;
        std::optional<std::string> right;
    };

  private:
    using Number = std::uint32_t;

  public:
    /// Names of fields, different ones, in text order.
    class FieldNames {
      public:
        class Iterator {
          public:
            using iterator_category = std::input_iterator_tag;
            using value_type = std::string_view;
            using difference_type = std::ptrdiff_t;

            Iterator() = default;
            Iterator(const std::string* allNames, const Number* place) : names(allNames), number(place) {}
            std::string_view operator*() const { return names[*number]; }
            Iterator& operator++() {
                ++number;
                return *this;
            }
            Iterator operator++(int) {
                const Iterator before = *this;
                ++number;
                return before;
            }
            friend bool operator==(const Iterator&, const Iterator&) = default;

          private:
            const std::string* names = nullptr;
            const Number* number = nullptr;
        };

        FieldNames(const std::string* allNames, std::span<const Number> chosen)
            : names(allNames), numbers(chosen) {}
        std::size_t size() const { return numbers.size(); }
        bool empty() const { return numbers.empty(); }
        Iterator begin() const { return {names, numbers.data()}; }
        Iterator end() const { return {names, numbers.data() + numbers.size()}; }
        /// Whether `name` is one of them, as it stands.
        bool contains(std::string_view name) const;

      private:
        const std::string* names;
        std::span<const Number> numbers;
    };

    /// A pair of records, or a record without partner.
    class Row {
      public:
        /// The positions of the records in their documents; at least one of them is there.
        std::optional<std::size_t> left() const;
        std::optional<std::size_t> right() const;
        Status status() const;
        /// Empty unless the status is `differs`. Rows that differ in the same fields share them.
        FieldNames differingFields() const;

      private:
        friend class ADIFComparison;
        Row(const ADIFComparison& of, std::size_t at) : comparison(&of), index(at) {}

        const ADIFComparison* comparison;
        std::size_t index;
    };

    /// One row for each pair and each record without partner: those of the left records in their order, so
    /// that the row of a left record is its position, and behind them the right records that are left over,
    /// in theirs.
    std::size_t rowCount() const { return leftRows.size() + rightOnly.size(); }
    /// `index` is below `rowCount()`. Cost: nothing to speak of.
    Row row(std::size_t index) const { return {*this, index}; }

    /// The names of the fields to show, all different: the key fields that any record has, then those of the
    /// left records and of the right ones in order of first appearance.
    const std::vector<std::string>& columns() const { return columnNames; }
    /// In the order in which the fields first appear in the header of the left log, then of the right one.
    const std::vector<HeaderDiff>& headerDiffs() const { return headerDifferences; }
    const Counts& counts() const { return rowCounts; }

    /// The rows whose status is not `equal`, ascending.
    std::span<const std::uint32_t> differences() const { return unequalRows; }
    /// The nearest of them behind `row` and in front of it; absent if there is none. `row` may be anything.
    std::optional<std::size_t> nextDifference(std::size_t row) const;
    std::optional<std::size_t> previousDifference(std::size_t row) const;

  private:
    friend class ADIFComparator;

    static constexpr Number none = static_cast<Number>(-1);

    struct LeftRow {
        Number right = none;      ///< The partner's position.
        Number differingSet = 0;  ///< The number of the set of fields in which they differ; 0 is empty.
    };

    std::span<const Number> differingSet(Number number) const {
        return std::span(setMembers).subspan(setBegins[number], setBegins[number + 1] - setBegins[number]);
    }
    Number addSet(std::span<const Number> members);
    /// `row` has two records, which now differ in these fields. They are in text order.
    void setDifferingFields(std::size_t row, std::span<const std::string_view> fields);
    std::size_t& countOf(Status status);

    std::vector<std::string> columnNames;
    std::vector<HeaderDiff> headerDifferences;
    std::vector<LeftRow> leftRows;  ///< By position of the left record.
    std::vector<Number> rightOnly;
    std::vector<Number> unequalRows;
    Counts rowCounts;
    std::vector<std::string> names;  ///< Of fields, by the numbers that stand in the sets.
    std::vector<Number> setMembers;  ///< Of all sets, one after the other.
    std::vector<std::size_t> setBegins{0, 0};
};

/// The name of the case, such as "onlyLeft".
constexpr std::string_view nameOf(ADIFComparison::Status status) {
    constexpr std::array<std::string_view, 4> names = {"equal", "differs", "onlyLeft", "onlyRight"};
    return names[static_cast<std::size_t>(status)];
}

}  // namespace tallyrig
