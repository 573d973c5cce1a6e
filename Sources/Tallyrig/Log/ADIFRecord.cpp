// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Log/ADIFRecord.h"

#include "Tallyrig/Log/RecordEditor.h"
#include "Tallyrig/Log/RecordSearch.h"
#include "Tallyrig/Text/Text.h"

namespace tallyrig {

ADIFRecord::ADIFRecord() : ADIFRecord(std::span<const ADIFField>()) {}

ADIFRecord::ADIFRecord(std::span<const ADIFField> fields, UUID id)
    : ADIFRecord(RecordEditor().make(fields, id)) {}

std::optional<std::string_view> ADIFRecord::operator[](std::string_view name) const {
    const auto index = indexOfField(*storage.get(), name);
    return index ? std::optional(storage->value(*index)) : std::nullopt;
}

bool ADIFRecord::has(std::string_view name) const {
    return indexOfField(*storage.get(), name).has_value();
}

void ADIFRecord::set(std::string_view name, std::optional<std::string_view> value) {
    if (!value) {
        removeField(name);
        return;
    }
    *this = RecordEditor().setValue(*this, name, *value);
}

void ADIFRecord::renameField(std::string_view from, std::string_view to) {
    const FieldName source(from);
    const FieldName target(to);
    if (text::equal(source.upper(), target.upper())) {
        return;
    }
    if (auto changed = RecordEditor().rename(*this, source, target)) {
        *this = *std::move(changed);
    }
}

void ADIFRecord::duplicateField(std::string_view name, std::string_view as) {
    if (auto changed = RecordEditor().duplicate(*this, name, as)) {
        *this = *std::move(changed);
    }
}

void ADIFRecord::removeField(std::string_view name) {
    if (auto changed = RecordEditor().remove(*this, name)) {
        *this = *std::move(changed);
    }
}

void ADIFRecord::setValue(std::size_t index, std::string_view value) {
    *this = RecordEditor().withValueAt(*this, index, value);
}

void ADIFRecord::appendField(const ADIFField& field) {
    *this = RecordEditor().withField(*this, field);
}

void ADIFRecord::removeFieldAt(std::size_t index) {
    *this = RecordEditor().withoutFieldAt(*this, index);
}

bool operator==(const ADIFRecord& left, const ADIFRecord& right) {
    if (left.isSameAs(right)) {
        return true;
    }
    const RecordStorage& first = *left.storage.get();
    const RecordStorage& second = *right.storage.get();
    if (first.fieldCount() != second.fieldCount()) {
        return false;
    }
    for (std::size_t index = 0; index < first.fieldCount(); ++index) {
        const FieldTag& firstTag = first.tag(index);
        const FieldTag& secondTag = second.tag(index);
        const bool equalTypes = firstTag.type.has_value() == secondTag.type.has_value() &&
                                (!firstTag.type || text::equal(*firstTag.type, *secondTag.type));
        if (!equalTypes || !text::equal(first.value(index), second.value(index)) ||
            !text::equal(firstTag.name, secondTag.name)) {
            return false;
        }
    }
    return true;
}

}  // namespace tallyrig
