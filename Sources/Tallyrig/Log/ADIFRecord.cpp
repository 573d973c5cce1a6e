#include "Tallyrig/Log/ADIFRecord.h"

#include "Tallyrig/Log/RecordEditor.h"
#include "Tallyrig/Log/RecordSearch.h"
#include "Tallyrig/Text/Text.h"

namespace tallyrig {

namespace {

/// A name as it is looked up: in upper case, without a copy where it is that already.
class LookupName {
  public:
    explicit LookupName(std::string_view name) : view(name) {
        for (const char c : name) {
            if ((c >= 'a' && c <= 'z') || static_cast<unsigned char>(c) >= 0x80) {
                text = text::upper(name);
                view = text;
                return;
            }
        }
    }
    LookupName(const LookupName&) = delete;
    LookupName& operator=(const LookupName&) = delete;
    operator std::string_view() const { return view; }

  private:
    std::string text;
    std::string_view view;
};

}  // namespace

ADIFRecord::ADIFRecord() : ADIFRecord(std::span<const ADIFField>()) {}

ADIFRecord::ADIFRecord(std::span<const ADIFField> fields, UUID id)
    : ADIFRecord(RecordEditor().make(fields, id)) {}

std::optional<std::string_view> ADIFRecord::operator[](std::string_view name) const {
    const auto index = indexOfField(*storage.get(), LookupName(name));
    return index ? std::optional(storage->value(*index)) : std::nullopt;
}

bool ADIFRecord::has(std::string_view name) const {
    return indexOfField(*storage.get(), LookupName(name)).has_value();
}

void ADIFRecord::set(std::string_view name, std::optional<std::string_view> value) {
    if (!value) {
        removeField(name);
        return;
    }
    *this = RecordEditor().setValue(*this, LookupName(name), *value);
}

void ADIFRecord::renameField(std::string_view from, std::string_view to) {
    const LookupName source(from);
    const LookupName target(to);
    if (text::equal(source, target)) {
        return;
    }
    if (auto changed = RecordEditor().rename(*this, source, target)) {
        *this = *std::move(changed);
    }
}

void ADIFRecord::duplicateField(std::string_view name, std::string_view as) {
    if (auto changed = RecordEditor().duplicate(*this, LookupName(name), LookupName(as))) {
        *this = *std::move(changed);
    }
}

void ADIFRecord::removeField(std::string_view name) {
    if (auto changed = RecordEditor().remove(*this, LookupName(name))) {
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
