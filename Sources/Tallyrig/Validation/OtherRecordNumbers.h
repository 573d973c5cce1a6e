// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <initializer_list>
#include <iterator>
#include <memory>
#include <vector>

namespace tallyrig {

/// The numbers, counting from one and ascending, of the records that share a key with one record.
///
/// All members of a group share one list and leave out themselves, so that a log of a hundred thousand equal
/// records does not need a hundred thousand lists of that length.
class OtherRecordNumbers {
  public:
    class Iterator {
      public:
        using iterator_category = std::input_iterator_tag;
        using value_type = std::size_t;
        using difference_type = std::ptrdiff_t;

        Iterator() = default;
        Iterator(const OtherRecordNumbers* list, std::size_t index) : numbers(list), position(index) {}
        std::size_t operator*() const { return (*numbers)[position]; }
        Iterator& operator++() {
            ++position;
            return *this;
        }
        Iterator operator++(int) {
            Iterator before = *this;
            ++position;
            return before;
        }
        friend bool operator==(const Iterator&, const Iterator&) = default;

      private:
        const OtherRecordNumbers* numbers = nullptr;
        std::size_t position = 0;
    };

    OtherRecordNumbers(std::initializer_list<std::size_t> numbers);
    /// The numbers of a whole group but for the one at `own`, a position in it.
    OtherRecordNumbers(std::shared_ptr<const std::vector<std::size_t>> group, std::size_t own);

    std::size_t size() const { return group->size() - (own < group->size() ? 1 : 0); }
    /// `index` is below `size()`.
    std::size_t operator[](std::size_t index) const { return (*group)[index < own ? index : index + 1]; }
    Iterator begin() const { return {this, 0}; }
    Iterator end() const { return {this, size()}; }

    friend bool operator==(const OtherRecordNumbers& left, const OtherRecordNumbers& right);

  private:
    std::shared_ptr<const std::vector<std::size_t>> group;
    std::size_t own;  ///< Behind the end of the group where nothing is left out.
};

}  // namespace tallyrig
