// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Log/RecordStorage.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <new>
#include <vector>

namespace tallyrig {

namespace {

constexpr std::size_t largestSlab = 64 * 1024;
constexpr std::size_t longestValues = std::numeric_limits<std::uint32_t>::max();

std::size_t aligned(std::size_t size) {
    constexpr std::size_t alignment = alignof(RecordStorage);
    return (size + alignment - 1) / alignment * alignment;
}

}  // namespace

ADIFFieldView RecordStorage::field(std::size_t index) const {
    const FieldTag& shared = tag(index);
    return {fieldID(index), shared.name, value(index),
            shared.type ? std::optional<std::string_view>(*shared.type) : std::nullopt};
}

UUID RecordStorage::fieldID(std::size_t index) const {
    if (runCount == 0) {
        return identity.advancedBy(index + 1);
    }
    const Run* const end = runs() + runCount;
    const Run* const run =
        std::upper_bound(runs(), end, index,
                         [](std::size_t at, const Run& candidate) { return at < candidate.start; }) -
        1;
    return run->first.advancedBy(index - run->start);
}

RecordSlab* RecordSlab::make(std::shared_ptr<const FieldTags> tags, std::size_t capacity) {
    void* const memory = ::operator new(aligned(sizeof(RecordSlab)) + capacity);
    return new (memory) RecordSlab(std::move(tags));
}

void RecordSlab::release() {
    if (references.fetch_sub(1, std::memory_order_acq_rel) == 1) {
        this->~RecordSlab();
        ::operator delete(this);
    }
}

RecordAllocator::~RecordAllocator() {
    if (current != nullptr) {
        current->release();
    }
}

RecordStorage* RecordAllocator::reserve(std::size_t size, const std::shared_ptr<const FieldTags>& tags) {
    const bool fits =
        current != nullptr && current->sharedTags() == tags && size <= static_cast<std::size_t>(limit - next);
    if (!fits) {
        const std::size_t capacity = std::max(size, nextCapacity);
        RecordSlab* const slab = RecordSlab::make(tags, capacity);
        if (current != nullptr) {
            current->release();
        }
        current = slab;
        next = reinterpret_cast<std::byte*>(slab) + aligned(sizeof(RecordSlab));
        limit = next + capacity;
        nextCapacity = std::clamp(capacity * 2, std::size_t{256}, largestSlab);
    }
    auto* const record = new (next) RecordStorage();
    next += size;
    record->slab = current;
    return record;
}

RecordReference RecordAllocator::allocate(UUID id, std::span<const FieldDraft> fields,
                                          const std::shared_ptr<const FieldTags>& tags) {
    std::vector<RecordStorage::Run> runs;
    UUID expected = id.advancedBy(1);
    std::size_t textSize = 0;
    for (std::size_t index = 0; index < fields.size(); ++index) {
        if (fields[index].id != expected) {
            if (runs.empty() && index > 0) {
                runs.push_back({id.advancedBy(1), 0});
            }
            runs.push_back({fields[index].id, index});
        }
        expected = fields[index].id.advancedBy(1);
        textSize += std::min(fields[index].value.size(), longestValues - textSize);
    }
    const std::size_t size = sizeof(RecordStorage) + runs.size() * sizeof(RecordStorage::Run) +
                             fields.size() * sizeof(RecordStorage::Entry) + textSize;
    RecordStorage* const record = reserve(aligned(size), tags);
    record->identity = id;
    record->entryCount = static_cast<std::uint32_t>(fields.size());
    record->runCount = static_cast<std::uint32_t>(runs.size());
    auto* const runsBegin = reinterpret_cast<RecordStorage::Run*>(record + 1);
    std::uninitialized_copy(runs.begin(), runs.end(), runsBegin);
    auto* entry = reinterpret_cast<RecordStorage::Entry*>(runsBegin + runs.size());
    auto* const texts = reinterpret_cast<char*>(entry + fields.size());
    std::size_t end = 0;
    for (const FieldDraft& field : fields) {
        const std::size_t length = std::min(field.value.size(), textSize - end);
        if (length > 0) {
            std::memcpy(texts + end, field.value.data(), length);
        }
        end += length;
        new (entry++) RecordStorage::Entry{field.tag, static_cast<std::uint32_t>(end)};
    }
    return RecordReference(record);
}

RecordReference RecordAllocator::allocate(UUID id, std::span<const RecordStorage::Entry> entries,
                                          std::string_view values,
                                          const std::shared_ptr<const FieldTags>& tags) {
    const std::size_t size = sizeof(RecordStorage) + entries.size_bytes() + values.size();
    RecordStorage* const record = reserve(aligned(size), tags);
    record->identity = id;
    record->entryCount = static_cast<std::uint32_t>(entries.size());
    auto* const stored = reinterpret_cast<RecordStorage::Entry*>(record + 1);
    std::uninitialized_copy(entries.begin(), entries.end(), stored);
    if (!values.empty()) {
        std::memcpy(stored + entries.size(), values.data(), values.size());
    }
    return RecordReference(record);
}

}  // namespace tallyrig
