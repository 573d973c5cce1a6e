// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/TableMetrics.h"
#include "Quillon/Platform/TextMeasurer.h"

#include <QFont>
#include <QFontMetricsF>

#include <array>
#include <optional>
#include <vector>

namespace quillon {

/// The font that is meant, as the desktop is set up now: what is measured and what is painted must be the
/// same.
QFont fontFor(MeasuredFont font);

/// The font for captions and notes: the font of the application, a step smaller.
QFont smallFont();

/// The measures of tables in the font of the cells, as the desktop is set up now. The stores, given a
/// `FontMeasurer`, reckon with the same.
TableMetrics desktopTableMetrics();

/// Measures with the fonts of the desktop. Lives on the main thread, while there is an application.
///
/// A log has many thousand short texts of the same few letters, and shaping each one is what opening it would
/// wait for. The width of an ASCII text is therefore put together from its letters and what each pair of
/// neighbours takes or gives, both measured once.
class FontMeasurer : public TextMeasurer {
  public:
    double width(MeasuredFont font, std::string_view text) const override;
    double height(MeasuredFont font) const override;

  private:
    struct FontWidths {
        explicit FontWidths(const QFont& font);

        double ofPrintableASCII(std::string_view text);

        QFontMetricsF metrics;
        std::vector<double> letters;   ///< By character; not a number until it was measured.
        std::vector<double> kernings;  ///< What is added between two characters, by both; likewise.
    };

    FontWidths& widths(MeasuredFont font) const;

    mutable QFont desktopFont;  ///< The one that the widths were measured for.
    mutable std::array<std::optional<FontWidths>, 3> known;
};

}  // namespace quillon
