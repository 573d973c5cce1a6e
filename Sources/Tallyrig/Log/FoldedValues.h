// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

namespace tallyrig {

/// Values as pieces of a key: two give the same piece exactly if they are equal in upper case. A piece has no
/// more bytes for a long value than for a short one, as such a value may stand in memory once for all the
/// records of a log, whose keys would then be larger than the log.
///
/// What it learns of a long value it keeps by the place where that stands: it must not outlive the documents,
/// whose records stay as they are.
class FoldedValues {
  public:
    /// The piece for `value`. It refers to `value`, or to this until the next call. Where two values give one
    /// text with the separator U+001F in it, so do their pieces.
    std::string_view piece(std::string_view value);

  private:
    std::string shortened(std::string_view folded);

    std::string upperText;
    std::string canonicalText;
    std::unordered_map<const char*, std::string> longValues;  ///< The pieces, by the place of the value.
    std::unordered_map<std::string, std::size_t> longTexts;   ///< The numbers that stand for them.
};

}  // namespace tallyrig
