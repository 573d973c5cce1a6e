// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>

namespace tallyrig {

/// What fields share: a name and a type indicator, and where a long value stands in many records that too.
struct FieldTag {
    std::string name;
    std::optional<std::string> type;
    std::shared_ptr<const std::string> sharedValue;  ///< Null where each field has a value of its own.
    bool hasASCIIName = true;  ///< Such a name equals another in ASCII only if their bytes do.
};

/// The distinct tags of a log, each stored once and known to its fields by number. A name may stand in
/// several of them. Grows while records are being made and is only read once they are handed out.
class FieldTags {
  public:
    using Number = std::uint32_t;
    using Value = std::shared_ptr<const std::string>;

    FieldTags() = default;
    FieldTags(const FieldTags& other);
    FieldTags& operator=(const FieldTags&) = delete;

    std::size_t size() const { return tags.size(); }
    const FieldTag& operator[](Number number) const { return tags[number]; }

    /// The number of this tag, added if it is new. Names are compared byte by byte: two canonically
    /// equivalent spellings are two tags. Values are compared by their place in memory.
    Number add(std::string_view name, std::optional<std::string_view> type, const Value& sharedValue = {});
    /// The number of this tag, absent if it is not here.
    std::optional<Number> find(std::string_view name, std::optional<std::string_view> type,
                               const Value& sharedValue = {}) const;

  private:
    struct Key {
        std::string_view name;
        std::optional<std::string_view> type;
        const std::string* sharedValue = nullptr;

        friend bool operator==(const Key&, const Key&) = default;
    };

    /// The numbers are hashed and compared as the tags that they stand for.
    struct Hash {
        using is_transparent = void;
        const std::deque<FieldTag>* tags;
        std::size_t operator()(const Key& key) const;
        std::size_t operator()(Number number) const { return (*this)(keyOf((*tags)[number])); }
    };
    struct Equal {
        using is_transparent = void;
        const std::deque<FieldTag>* tags;
        bool operator()(const Key& key, Number number) const { return key == keyOf((*tags)[number]); }
        bool operator()(Number number, const Key& key) const { return key == keyOf((*tags)[number]); }
        bool operator()(Number left, Number right) const { return left == right; }
    };

    static Key keyOf(const FieldTag& tag);

    std::deque<FieldTag> tags;
    std::unordered_set<Number, Hash, Equal> numbers{0, Hash{&tags}, Equal{&tags}};
};

}  // namespace tallyrig
