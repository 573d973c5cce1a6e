// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Contest/TextLists.h"

#include <utility>

namespace tallyrig {

SharedTexts TextLists::takeList() {
    numbers.append({reinterpret_cast<const char*>(ends.data()), ends.size() * sizeof ends.front()});
    const KeyNumbers::Entry entry = numbers.add(texts);
    if (entry.isNew) {
        std::vector<std::string> list;
        std::size_t begin = 0;
        for (const std::size_t end : ends) {
            list.push_back(texts.substr(begin, end - begin));
            begin = end;
        }
        lists.emplace_back(std::move(list));
    }
    texts.clear();
    ends.clear();
    return lists[entry.number];
}

}  // namespace tallyrig
