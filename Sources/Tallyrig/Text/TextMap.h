// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tallyrig {

/// A small map from texts to values, walked in text order. Canonically equivalent keys are one, in the
/// composed form; of entries with one key the first stays.
template <typename Value>
class TextMap {
  public:
    using Entry = std::pair<std::string, Value>;

    TextMap() = default;
    TextMap(std::initializer_list<std::pair<std::string_view, Value>> list) {
        for (const auto& [key, value] : list) {
            add(text::canonicalKey(key), value);
        }
    }

    /// Null if `key`, as it stands, is not in the map; good as long as the map is. Cost: a binary search.
    const Value* find(std::string_view key) const {
        if (!text::isASCII(key)) {
            return findCanonical(text::canonicalKey(key));
        }
        return findCanonical(key);
    }
    std::size_t size() const { return entries.size(); }
    auto begin() const { return entries.begin(); }
    auto end() const { return entries.end(); }
    friend bool operator==(const TextMap&, const TextMap&) = default;

  protected:
    void add(std::string key, const Value& value) {
        const auto place = std::ranges::lower_bound(entries, key, {}, &Entry::first);
        if (place == entries.end() || place->first != key) {
            entries.emplace(place, std::move(key), value);
        }
    }

  private:
    const Value* findCanonical(std::string_view key) const {
        const auto place = std::ranges::lower_bound(entries, key, {}, &Entry::first);
        return place != entries.end() && place->first == key ? &place->second : nullptr;
    }

    std::vector<Entry> entries;
};

/// A map whose keys are in upper case, whatever they were made of.
template <typename Value>
class UpperTextMap : public TextMap<Value> {
  public:
    UpperTextMap() = default;
    UpperTextMap(std::initializer_list<std::pair<std::string_view, Value>> list) {
        for (const auto& [key, value] : list) {
            this->add(text::canonicalKey(text::upper(key)), value);
        }
    }
};

}  // namespace tallyrig
