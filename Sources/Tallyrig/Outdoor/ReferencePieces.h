// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// What the forms of references are made of: words and numbers of certain lengths between separators.
namespace tallyrig {

/// A stretch of the characters of a reference.
using ReferencePieces = std::span<const std::string_view>;

/// The characters of a reference without the blanks around it, in upper case. Does not refer to the text
/// given.
class ReferenceCharacters {
  public:
    explicit ReferenceCharacters(std::string_view reference);
    ReferenceCharacters(const ReferenceCharacters&) = delete;
    ReferenceCharacters& operator=(const ReferenceCharacters&) = delete;

    /// Good as long as this.
    ReferencePieces all() const { return characters; }

  private:
    std::string upper;
    std::vector<std::string_view> characters;
};

/// How many characters a piece may have, both ends included.
struct Lengths {
    std::size_t least;
    std::size_t most;
};

/// Letters and numeric characters only, so many of them.
bool isWord(ReferencePieces piece, Lengths lengths);
/// Numeric characters only, so many of them.
bool isNumber(ReferencePieces piece, Lengths lengths);

/// What stands before and behind the first, or the last, separator; absent if there is none.
std::optional<std::pair<ReferencePieces, ReferencePieces>> splitAtFirst(ReferencePieces text, char separator);
std::optional<std::pair<ReferencePieces, ReferencePieces>> splitAtLast(ReferencePieces text, char separator);

}  // namespace tallyrig
