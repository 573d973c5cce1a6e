#pragma once

#include "Quillon/Platform/TextMeasurer.h"

#include <QFont>
#include <QFontMetricsF>

#include <array>
#include <optional>

namespace quillon {

/// The font that is meant, as the desktop is set up now: what is measured and what is painted must be the
/// same.
QFont fontFor(MeasuredFont font);

/// The font for captions and notes: the font of the application, a step smaller.
QFont smallFont();

/// Measures with the fonts of the desktop. Lives on the main thread, while there is an application.
class FontMeasurer : public TextMeasurer {
  public:
    double width(MeasuredFont font, std::string_view text) const override;

  private:
    const QFontMetricsF& metrics(MeasuredFont font) const;

    mutable QFont desktopFont;  ///< The one that the metrics were made for.
    mutable std::array<std::optional<QFontMetricsF>, 3> known;
};

}  // namespace quillon
