// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/SharedTexts.h"
#include "Tallyrig/Text/KeyNumbers.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tallyrig {

/// Makes one list of texts after the other. Lists of the same texts are one in memory, so that a log in which
/// every QSO lacks its band says so once.
class TextLists {
  public:
    /// Puts a text that consists of `pieces` into the list.
    template <typename... Pieces>
    void add(const Pieces&... pieces) {
        (texts.append(pieces), ...);
        ends.push_back(texts.size());
    }

    /// The list of the texts added since the last one. Without any, it costs nothing.
    SharedTexts take() { return ends.empty() ? SharedTexts() : takeList(); }

  private:
    SharedTexts takeList();

    std::string texts;              ///< One after the other.
    std::vector<std::size_t> ends;  ///< Of each of them.
    KeyNumbers numbers;             ///< Of the lists, by their ends and texts.
    std::vector<SharedTexts> lists;
};

}  // namespace tallyrig
