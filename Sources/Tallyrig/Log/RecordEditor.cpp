// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Log/RecordEditor.h"

#include <algorithm>

namespace tallyrig {

void RecordEditor::take(const ADIFRecord& record) {
    const RecordStorage& storage = *record.storage.get();
    drafts.clear();
    drafts.reserve(storage.fieldCount() + 1);
    for (std::size_t index = 0; index < storage.fieldCount(); ++index) {
        drafts.push_back({storage.tagNumber(index), storage.ownValue(index), storage.fieldID(index)});
    }
    tags = record.storage.sharedTags();
    if (tags == extended) {
        tags = extension;
    }
}

FieldTags::Number RecordEditor::tag(std::string_view name, std::optional<std::string_view> type,
                                    const FieldTags::Value& sharedValue) {
    if (const auto known = tags->find(name, type, sharedValue)) {
        return *known;
    }
    if (tags != extension) {
        // The tags belong to records that others may be reading: add to a copy, in which the old numbers
        // hold.
        extended = tags;
        extension = std::make_shared<FieldTags>(*tags);
        tags = extension;
    }
    return extension->add(name, type, sharedValue);
}

void RecordEditor::giveValue(FieldDraft& draft, std::string_view value) {
    draft.value = value;
    const FieldTag& shared = (*tags)[draft.tag];
    if (shared.sharedValue) {
        draft.tag = tag(shared.name, shared.type);
    }
}

ADIFRecord RecordEditor::laidDown(UUID id) {
    return ADIFRecord(allocator.allocate(id, drafts, tags));
}

ADIFRecord RecordEditor::setValue(const ADIFRecord& record, const FieldName& name, std::string_view value) {
    take(record);
    if (const auto index = indexOfField(*record.storage.get(), name)) {
        giveValue(drafts[*index], value);
    } else {
        drafts.push_back({tag(name.upper(), std::nullopt), value, UUID::fresh()});
    }
    return laidDown(record.id());
}

std::optional<ADIFRecord> RecordEditor::rename(const ADIFRecord& record, const FieldName& from,
                                               const FieldName& to) {
    const auto index = indexOfField(*record.storage.get(), from);
    if (!index) {
        return std::nullopt;
    }
    take(record);
    const FieldTag& old = record.storage->tag(*index);
    drafts[*index].tag = tag(to.upper(), old.type, old.sharedValue);
    return laidDown(record.id());
}

std::optional<ADIFRecord> RecordEditor::duplicate(const ADIFRecord& record, const FieldName& name,
                                                  const FieldName& as) {
    const auto index = indexOfField(*record.storage.get(), name);
    if (!index) {
        return std::nullopt;
    }
    take(record);
    const FieldDraft source = drafts[*index];
    const FieldTag& original = record.storage->tag(*index);
    const FieldDraft copy{tag(as.upper(), original.type, original.sharedValue), source.value, UUID::fresh()};
    drafts.insert(drafts.begin() + static_cast<std::ptrdiff_t>(*index) + 1, copy);
    return laidDown(record.id());
}

std::optional<ADIFRecord> RecordEditor::remove(const ADIFRecord& record, const FieldName& name) {
    const RecordStorage& storage = *record.storage.get();
    if (!indexOfField(storage, name)) {
        return std::nullopt;
    }
    take(record);
    // The drafts still stand in the order of the stored fields, so their tags are those of the record.
    std::erase_if(drafts, [&](const FieldDraft& draft) { return isNamed((*tags)[draft.tag], name); });
    return laidDown(record.id());
}

ADIFRecord RecordEditor::withValueAt(const ADIFRecord& record, std::size_t index, std::string_view value) {
    take(record);
    giveValue(drafts[index], value);
    return laidDown(record.id());
}

ADIFRecord RecordEditor::withField(const ADIFRecord& record, const ADIFField& field) {
    take(record);
    drafts.push_back({tag(field.name, field.type), field.value, field.id});
    return laidDown(record.id());
}

ADIFRecord RecordEditor::withoutFieldAt(const ADIFRecord& record, std::size_t index) {
    take(record);
    drafts.erase(drafts.begin() + static_cast<std::ptrdiff_t>(index));
    return laidDown(record.id());
}

ADIFRecord RecordEditor::make(std::span<const ADIFField> fields, UUID id) {
    extension = std::make_shared<FieldTags>();
    tags = extension;
    drafts.clear();
    for (const ADIFField& field : fields) {
        drafts.push_back({extension->add(field.name, field.type), field.value, field.id});
    }
    return laidDown(id);
}

}  // namespace tallyrig
