// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace quillon {

/// The fonts whose text widths decide how wide a column must be.
enum class MeasuredFont {
    cell,   ///< The system font at the system size.
    label,  ///< The bold system font at the small size.
    tag,    ///< The monospaced system font at the small size.
};

/// Measures text without naming a screen.
class TextMeasurer {
  public:
    TextMeasurer() = default;
    TextMeasurer(const TextMeasurer&) = delete;
    TextMeasurer& operator=(const TextMeasurer&) = delete;
    virtual ~TextMeasurer() = default;

    /// The width of `text` (UTF-8) on one line, in logical pixels.
    virtual double width(MeasuredFont font, std::string_view text) const = 0;
    /// The height of a line from the top of the tallest letter to the bottom of the deepest, in logical
    /// pixels.
    virtual double height(MeasuredFont font) const = 0;
};

}  // namespace quillon
