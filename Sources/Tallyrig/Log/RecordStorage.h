// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFField.h"
#include "Tallyrig/Log/FieldTags.h"
#include "Tallyrig/Log/UUID.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <utility>

namespace tallyrig {

class RecordSlab;

/// A field to be stored: its tag by number, its own value (empty where the tag has one for it), its identity.
struct FieldDraft {
    FieldTags::Number tag = 0;
    std::string_view value;
    UUID id;
};

/// How a record lies in memory: this head, the places where its field ids start anew, one small entry for
/// each field, and the values one after the other. Made in one piece and never changed; many lie side by side
/// in one slab, which lives as long as any of them is referred to.
///
/// A value that the tag has for all its fields takes no room in the record.
///
/// Field ids are not stored one by one: they follow on the record's id, or on that of the last run before
/// them.
class RecordStorage {
  public:
    struct Entry {
        FieldTags::Number tag;
        std::uint32_t end;  ///< Where the value ends, in bytes behind the start of the values.
    };

    UUID id() const { return identity; }
    std::size_t fieldCount() const { return entryCount; }
    /// `index` is below `fieldCount()`, here and below.
    ADIFFieldView field(std::size_t index) const;
    const FieldTag& tag(std::size_t index) const { return tags()[tagNumber(index)]; }
    FieldTags::Number tagNumber(std::size_t index) const { return entries()[index].tag; }
    std::string_view value(std::size_t index) const {
        const std::string_view own = ownValue(index);
        return own.empty() ? sharedValue(index) : own;
    }
    /// The value if it lies in the record; empty where the tag has it.
    std::string_view ownValue(std::size_t index) const {
        const Entry* entry = entries() + index;
        const std::uint32_t begin = index == 0 ? 0 : entry[-1].end;
        return {texts() + begin, entry->end - begin};
    }
    UUID fieldID(std::size_t index) const;
    const FieldTags& tags() const;
    /// All values that lie in the record, one after the other (`ownValue`). Those that tags share are not
    /// among them.
    std::string_view allValues() const {
        return {texts(), entryCount == 0 ? 0 : entries()[entryCount - 1].end};
    }

  private:
    friend class RecordAllocator;
    friend class RecordReference;

    struct Run {
        UUID first;
        std::uint64_t start;  ///< The index of the first field of the run.
    };

    RecordStorage() = default;
    std::string_view sharedValue(std::size_t index) const {
        const FieldTags::Value& shared = tag(index).sharedValue;
        return shared ? std::string_view(*shared) : std::string_view();
    }
    const Run* runs() const { return reinterpret_cast<const Run*>(this + 1); }
    const Entry* entries() const { return reinterpret_cast<const Entry*>(runs() + runCount); }
    const char* texts() const { return reinterpret_cast<const char*>(entries() + entryCount); }

    RecordSlab* slab = nullptr;
    UUID identity;
    std::uint32_t entryCount = 0;
    std::uint32_t runCount = 0;
};

/// A piece of memory that holds records and counts the references to all of them together.
class RecordSlab {
  public:
    const FieldTags& tags() const { return *fieldTags; }
    const std::shared_ptr<const FieldTags>& sharedTags() const { return fieldTags; }

  private:
    friend class RecordAllocator;
    friend class RecordReference;

    explicit RecordSlab(std::shared_ptr<const FieldTags> sharedTags) : fieldTags(std::move(sharedTags)) {}
    static RecordSlab* make(std::shared_ptr<const FieldTags> tags, std::size_t capacity);
    void retain() { references.fetch_add(1, std::memory_order_relaxed); }
    void release();

    std::atomic<std::size_t> references = 1;
    std::shared_ptr<const FieldTags> fieldTags;
};

/// A counted reference to a stored record.
class RecordReference {
  public:
    RecordReference(const RecordReference& other) : target(other.target) {
        if (target != nullptr) {
            target->slab->retain();
        }
    }
    RecordReference(RecordReference&& other) noexcept : target(std::exchange(other.target, nullptr)) {}
    RecordReference& operator=(RecordReference other) noexcept {
        std::swap(target, other.target);
        return *this;
    }
    ~RecordReference() {
        if (target != nullptr) {
            target->slab->release();
        }
    }
    const RecordStorage* get() const { return target; }
    const RecordStorage* operator->() const { return target; }
    const std::shared_ptr<const FieldTags>& sharedTags() const { return target->slab->sharedTags(); }
    friend bool operator==(const RecordReference&, const RecordReference&) = default;

  private:
    friend class RecordAllocator;
    explicit RecordReference(const RecordStorage* record) : target(record) { target->slab->retain(); }

    const RecordStorage* target;
};

/// Lays records down in slabs. One allocator belongs to one task, such as reading a file: its records of one
/// set of tags share slabs that start small and grow, so that neither one record nor a million waste memory.
class RecordAllocator {
  public:
    RecordAllocator() = default;
    RecordAllocator(const RecordAllocator&) = delete;
    RecordAllocator& operator=(const RecordAllocator&) = delete;
    ~RecordAllocator();

    /// A record of fields with ids of their own. Values beyond 4 GiB in one record are cut off.
    RecordReference allocate(UUID id, std::span<const FieldDraft> fields,
                             const std::shared_ptr<const FieldTags>& tags);

    /// A record whose field ids follow on `id`. The ends of `entries` ascend.
    RecordReference allocate(UUID id, std::span<const RecordStorage::Entry> entries, std::string_view values,
                             const std::shared_ptr<const FieldTags>& tags);

  private:
    RecordStorage* reserve(std::size_t size, const std::shared_ptr<const FieldTags>& tags);

    RecordSlab* current = nullptr;
    std::byte* next = nullptr;
    std::byte* limit = nullptr;
    std::size_t nextCapacity = 0;
};

inline const FieldTags& RecordStorage::tags() const {
    return slab->tags();
}

}  // namespace tallyrig
