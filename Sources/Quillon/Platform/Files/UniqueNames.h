// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

namespace quillon {

/// The names of the files that one piece of work puts into a folder, each another one.
class UniqueNames {
  public:
    /// `name` followed by `extension`, a full stop included; with the first number from 2 on between the two
    /// where a file is called so already. Names that are canonically equivalent count as one: some file
    /// systems take the two spellings of a letter for the same.
    std::string next(std::string_view name, std::string_view extension = {});

  private:
    std::unordered_map<std::string, std::size_t> lastNumbers;  ///< By name; 1 where it has none.
};

}  // namespace quillon
