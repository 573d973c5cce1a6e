// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string_view>
#include <unordered_map>

namespace tallyrig {

/// The positions of the names of a constant table. Refers to the names, which live as long as the program.
class SpecIndex {
  public:
    explicit SpecIndex(std::size_t size) { positions.reserve(size); }

    /// The name gets the next position, from zero.
    void add(std::string_view name) { positions.emplace(name, positions.size()); }
    /// Exact, in the case it is given in; absent if there is no such name. Cost: one hash of `name`.
    std::optional<std::size_t> find(std::string_view name) const;

  private:
    std::unordered_map<std::string_view, std::size_t> positions;
};

/// A constant set of texts.
class SpecSet {
  public:
    explicit SpecSet(std::span<const std::string_view> texts);

    /// Exact: the caller brings `text` to upper case.
    bool contains(std::string_view text) const { return index.find(text).has_value(); }
    std::size_t size() const { return values.size(); }
    auto begin() const { return values.begin(); }
    auto end() const { return values.end(); }

  private:
    std::span<const std::string_view> values;
    SpecIndex index;
};

/// A constant map from names to values, which can be walked in the order of its rows.
template <typename Value>
class SpecTable {
  public:
    struct Row {
        std::string_view name;
        Value value;
    };

    /// The rows live as long as the program; no two have one name.
    explicit SpecTable(std::span<const Row> constantRows) : rows(constantRows), index(constantRows.size()) {
        for (const Row& row : rows) {
            index.add(row.name);
        }
    }

    /// Exact: the caller brings `name` to upper case. Null if there is no such row.
    const Value* find(std::string_view name) const {
        const auto position = index.find(name);
        return position ? &rows[*position].value : nullptr;
    }
    bool contains(std::string_view name) const { return index.find(name).has_value(); }
    std::size_t size() const { return rows.size(); }
    auto begin() const { return rows.begin(); }
    auto end() const { return rows.end(); }

  private:
    std::span<const Row> rows;
    SpecIndex index;
};

}  // namespace tallyrig
