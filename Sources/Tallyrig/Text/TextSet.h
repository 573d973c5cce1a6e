// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tallyrig {

/// A small set of texts, walked in text order. Canonically equivalent texts are one, in the composed form.
class TextSet {
  public:
    TextSet() = default;
    TextSet(std::initializer_list<std::string_view> texts);
    template <std::size_t count>
    TextSet(const std::array<std::string_view, count>& texts) : TextSet(std::span(texts)) {}
    explicit TextSet(std::span<const std::string_view> texts);

    /// Whether `text` is in the set as it stands. Cost: a binary search.
    bool contains(std::string_view text) const;
    std::size_t size() const { return members.size(); }
    auto begin() const { return members.begin(); }
    auto end() const { return members.end(); }
    friend bool operator==(const TextSet&, const TextSet&) = default;

  protected:
    explicit TextSet(std::vector<std::string> texts);

  private:
    std::vector<std::string> members;  ///< Ascending and different.
};

/// A set of texts that are in upper case, whatever they were made of.
class UpperTextSet : public TextSet {
  public:
    UpperTextSet() = default;
    UpperTextSet(std::initializer_list<std::string_view> texts);
    template <std::size_t count>
    UpperTextSet(const std::array<std::string_view, count>& texts) : UpperTextSet(std::span(texts)) {}
    explicit UpperTextSet(std::span<const std::string_view> texts);
};

}  // namespace tallyrig
