// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFField.h"
#include "Tallyrig/Log/RecordStorage.h"
#include "Tallyrig/Log/UUID.h"

#include <cstddef>
#include <iterator>
#include <optional>
#include <span>
#include <string_view>

namespace tallyrig {

/// The fields of a record in their order, as views made when asked for. Refers to the record, as its views
/// do: good as long as that record, or any copy of it, lives and is not changed.
class ADIFFields {
  public:
    class Iterator {
      public:
        using iterator_category = std::input_iterator_tag;
        using value_type = ADIFFieldView;
        using difference_type = std::ptrdiff_t;

        Iterator() = default;
        Iterator(const RecordStorage* record, std::size_t index) : storage(record), position(index) {}
        ADIFFieldView operator*() const { return storage->field(position); }
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
        const RecordStorage* storage = nullptr;
        std::size_t position = 0;
    };

    explicit ADIFFields(const RecordStorage* record) : storage(record) {}
    std::size_t size() const { return storage->fieldCount(); }
    bool empty() const { return size() == 0; }
    /// `index` is below `size()`.
    ADIFFieldView operator[](std::size_t index) const { return storage->field(index); }
    Iterator begin() const { return {storage, 0}; }
    Iterator end() const { return {storage, size()}; }

  private:
    const RecordStorage* storage;
};

/// One QSO: an ordered sequence of fields. Any name may stand in it, in any order, any number of times;
/// whether a name or a value is valid is the validator's business.
///
/// A value that copies in constant time: copies share their storage until one of them is changed. A change
/// costs the size of the record. Every name given is upper-cased and then compared with the stored names as
/// they stand; a look-up is a scan from the front.
class ADIFRecord {
  public:
    /// A record without fields, with a fresh id.
    ADIFRecord();
    /// A record of these fields, unchanged.
    explicit ADIFRecord(std::span<const ADIFField> fields, UUID id = UUID::fresh());

    /// The identity of the record in its log: selection and findings key on it. No part in equality.
    UUID id() const { return storage->id(); }
    ADIFFields fields() const { return ADIFFields(storage.get()); }
    /// The record as it lies in memory, for those who walk whole logs. Good as long as `fields()` is.
    const RecordStorage& stored() const { return *storage.get(); }

    /// The value of the first field of this name; absent if there is none, empty if it is there and empty.
    /// Good as long as `fields()` is.
    std::optional<std::string_view> operator[](std::string_view name) const;
    /// The same, an absent field counting as empty.
    std::string_view valueOrEmpty(std::string_view name) const {
        return (*this)[name].value_or(std::string_view());
    }
    /// Whether any field has this name, whatever its value.
    bool has(std::string_view name) const;

    /// With a value: the first field of this name takes it and keeps its id, type and position; if there is
    /// none, a field without type is appended. With none: as `removeField`.
    void set(std::string_view name, std::optional<std::string_view> value);
    /// The first field `from` takes the name `to` and keeps all else; later ones of that name stay. Nothing
    /// happens if the names are the same in upper case. Whether `to` exists already is not asked.
    void renameField(std::string_view from, std::string_view to);
    /// A copy of the first field `name`, with a fresh id and the name `as`, is inserted directly behind it.
    void duplicateField(std::string_view name, std::string_view as);
    /// Removes all fields of this name.
    void removeField(std::string_view name);

    /// The field at `index`, below the number of fields, takes this value, empty or not.
    void setValue(std::size_t index, std::string_view value);
    /// Adds a copy of `field`, with its id, behind all others.
    void appendField(const ADIFField& field);
    /// Removes the field at `index`, below the number of fields.
    void removeFieldAt(std::size_t index);

    /// Whether both are copies of one record, unchanged: true only if they are equal, and at once.
    bool isSameAs(const ADIFRecord& other) const { return storage == other.storage; }
    /// Equal fields in the same order; ids are ignored.
    friend bool operator==(const ADIFRecord& left, const ADIFRecord& right);

  private:
    friend class ADIFRecordBuilder;
    friend class RecordEditor;
    explicit ADIFRecord(RecordReference reference) : storage(std::move(reference)) {}

    RecordReference storage;
};

}  // namespace tallyrig
