// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Text/Text.h"

#include <concepts>
#include <string>
#include <string_view>

namespace tallyrig {

/// A text that is in upper case, whatever it was made of: the name of a field or a band.
class UpperText {
  public:
    UpperText() = default;
    template <std::convertible_to<std::string_view> Source>
    UpperText(const Source& source) : text(text::upper(source)) {}

    const std::string& string() const { return text; }
    operator std::string_view() const { return text; }
    friend bool operator==(const UpperText& left, const UpperText& right) {
        return text::equal(left.text, right.text);
    }

  private:
    std::string text;
};

}  // namespace tallyrig
