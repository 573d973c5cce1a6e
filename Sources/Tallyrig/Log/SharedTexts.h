// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/Shared.h"

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

namespace tallyrig {

/// A list of texts that many values have in common: a copy shares it, and an empty one takes no memory of its
/// own.
class SharedTexts {
  public:
    SharedTexts() = default;
    SharedTexts(std::vector<std::string> list) {
        if (!list.empty()) {
            texts = Shared<std::vector<std::string>>::make(std::move(list));
        }
    }
    SharedTexts(std::initializer_list<std::string> list) : SharedTexts(std::vector<std::string>(list)) {}

    bool empty() const { return !texts; }
    operator const std::vector<std::string>&() const { return list(); }
    auto begin() const { return list().begin(); }
    auto end() const { return list().end(); }
    friend bool operator==(const SharedTexts& left, const SharedTexts& right) {
        return left.texts == right.texts || left.list() == right.list();
    }

  private:
    const std::vector<std::string>& list() const {
        static const std::vector<std::string> none;
        return texts ? *texts : none;
    }

    Shared<std::vector<std::string>> texts;
};

}  // namespace tallyrig
