#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace tallyrig {

/// A name and a type indicator that fields share.
struct FieldTag {
    std::string name;
    std::optional<std::string> type;
    bool hasASCIIName = true;  ///< Such a name equals another in ASCII only if their bytes do.
};

/// The distinct pairs of name and type in a log, each stored once and known to its fields by number. A name
/// may stand in several pairs. Grows while records are being made and is only read once they are handed out.
class FieldTags {
  public:
    using Number = std::uint32_t;

    FieldTags() = default;
    FieldTags(const FieldTags& other);
    FieldTags& operator=(const FieldTags&) = delete;

    std::size_t size() const { return tags.size(); }
    const FieldTag& operator[](Number number) const { return tags[number]; }

    /// The number of this pair, added if it is new. Names are compared byte by byte: two canonically
    /// equivalent spellings are two entries.
    Number add(std::string_view name, std::optional<std::string_view> type);
    /// The number of this pair, absent if it is not here.
    std::optional<Number> find(std::string_view name, std::optional<std::string_view> type) const;

  private:
    std::deque<FieldTag> tags;
    std::unordered_map<std::string, Number> numbers;
};

}  // namespace tallyrig
