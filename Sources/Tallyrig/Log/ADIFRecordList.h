// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFRecord.h"
#include "Tallyrig/Log/Shared.h"
#include "Tallyrig/Log/UUID.h"

#include <cstddef>
#include <functional>
#include <iterator>
#include <optional>
#include <vector>

namespace tallyrig {

/// The ordered records of a log.
///
/// A value that copies in constant time; a copy may be read on one thread while another is changed on a
/// second. The records lie in leaves of at most 128, the leaves under branches of at most 128: a copy in
/// which one record is changed, added or removed costs a leaf, a branch and the short list of branches, not
/// the log. Iterators and references to records are good until the list that gave them is changed, assigned
/// to or gone.
class ADIFRecordList {
    struct Leaf;
    struct Branch;
    struct Root;

  public:
    class Iterator {
      public:
        using iterator_category = std::forward_iterator_tag;
        using value_type = ADIFRecord;
        using difference_type = std::ptrdiff_t;
        using reference = const ADIFRecord&;

        Iterator() = default;
        reference operator*() const { return *record; }
        const ADIFRecord* operator->() const { return record; }
        Iterator& operator++();
        Iterator operator++(int) {
            Iterator before = *this;
            ++*this;
            return before;
        }
        friend bool operator==(const Iterator& left, const Iterator& right) {
            return left.record == right.record;
        }

      private:
        friend class ADIFRecordList;
        Iterator(const Root* list, std::size_t branchIndex, std::size_t leafIndex, std::size_t slotIndex);
        void settle();

        const Root* root = nullptr;
        std::size_t branch = 0;
        std::size_t leaf = 0;
        const ADIFRecord* record = nullptr;
        const ADIFRecord* leafEnd = nullptr;
    };

    ADIFRecordList();
    explicit ADIFRecordList(std::vector<ADIFRecord> records);
    ADIFRecordList(const ADIFRecordList& other);
    ADIFRecordList(ADIFRecordList&& other) noexcept;
    ADIFRecordList& operator=(const ADIFRecordList& other);
    ADIFRecordList& operator=(ADIFRecordList&& other) noexcept;
    ~ADIFRecordList();

    std::size_t size() const;
    bool empty() const { return size() == 0; }
    /// `index` is below `size()`. Cost: two short binary searches; to walk all records, iterate.
    const ADIFRecord& operator[](std::size_t index) const;
    Iterator begin() const;
    Iterator end() const;
    /// An iterator at `index`, at most `size()`.
    Iterator at(std::size_t index) const;

    /// The position of the record with this id, absent if there is none. Cost: a binary search as long as ids
    /// ascend, which they do in any log that was read and edited; otherwise a scan.
    std::optional<std::size_t> indexOf(UUID id) const;

    void append(ADIFRecord record);
    /// The record at `index`, below `size()`, becomes `record`.
    void replace(std::size_t index, ADIFRecord record);
    /// Changes the record at `index`, below `size()`; `change` leaves the list itself alone.
    void modify(std::size_t index, const std::function<void(ADIFRecord&)>& change);
    /// Removes the records for which `isRemoved` holds and returns their number. It is asked once for each,
    /// in order.
    std::size_t removeIf(const std::function<bool(const ADIFRecord&)>& isRemoved);
    /// Replaces each record for which `change` gives one and returns their number. It is asked once for each,
    /// in order.
    std::size_t transform(const std::function<std::optional<ADIFRecord>(const ADIFRecord&)>& change);

    /// Whether both are copies of one list, unchanged: true only if they are equal, and at once.
    bool isSameAs(const ADIFRecordList& other) const { return root == other.root; }
    /// Equal records in the same order, ids ignored. What two copies share is not compared.
    friend bool operator==(const ADIFRecordList& left, const ADIFRecordList& right);

  private:
    Shared<Root> root;
};

}  // namespace tallyrig
