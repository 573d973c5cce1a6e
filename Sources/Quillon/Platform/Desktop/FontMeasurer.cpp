// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/Desktop/FontMeasurer.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QString>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

namespace quillon {

namespace {

/// The small size stands to the system size as a caption stands to running text.
constexpr double smallFactor = 0.86;

constexpr std::size_t asciiSize = 128;
constexpr double unknown = std::numeric_limits<double>::quiet_NaN();

QFont atSmallSize(QFont font) {
    const QFont application = QGuiApplication::font();
    if (application.pointSizeF() > 0) {
        font.setPointSizeF(application.pointSizeF() * smallFactor);
    } else {
        font.setPixelSize(qRound(application.pixelSize() * smallFactor));
    }
    return font;
}

}  // namespace

QFont smallFont() {
    return atSmallSize(QGuiApplication::font());
}

QFont fontFor(MeasuredFont font) {
    switch (font) {
        case MeasuredFont::label: {
            QFont bold = smallFont();
            bold.setBold(true);
            return bold;
        }
        case MeasuredFont::tag:
            return atSmallSize(QFontDatabase::systemFont(QFontDatabase::FixedFont));
        case MeasuredFont::cell:
            break;
    }
    return QGuiApplication::font();
}

TableMetrics desktopTableMetrics() {
    return TableMetrics::forFontHeight(QFontMetricsF(fontFor(MeasuredFont::cell)).height());
}

FontMeasurer::FontWidths::FontWidths(const QFont& font)
    : metrics(font), letters(asciiSize, unknown), kernings(asciiSize * asciiSize, unknown) {}

double FontMeasurer::FontWidths::ofPrintableASCII(std::string_view text) {
    const auto measured = [&](double& entry, const auto& measure) {
        if (std::isnan(entry)) {
            entry = measure();
        }
        return entry;
    };
    double sum = 0;
    for (std::size_t index = 0; index < text.size(); ++index) {
        const QLatin1Char letter(text[index]);
        const auto code = static_cast<std::size_t>(text[index]);
        const double letterWidth =
            measured(letters[code], [&] { return metrics.horizontalAdvance(QString(letter)); });
        sum += letterWidth;
        if (index > 0) {
            const auto previous = static_cast<std::size_t>(text[index - 1]);
            sum += measured(kernings[previous * asciiSize + code], [&] {
                const QString pair = QString(QLatin1Char(text[index - 1])) + letter;
                return metrics.horizontalAdvance(pair) - letters[previous] - letterWidth;
            });
        }
    }
    return sum;
}

double FontMeasurer::width(MeasuredFont font, std::string_view text) const {
    FontWidths& fontWidths = widths(font);
    const bool isPrintableASCII = std::all_of(
        text.begin(), text.end(), [](char character) { return character >= ' ' && character < 0x7f; });
    return isPrintableASCII ? fontWidths.ofPrintableASCII(text)
                            : fontWidths.metrics.horizontalAdvance(
                                  QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
}

double FontMeasurer::height(MeasuredFont font) const {
    return widths(font).metrics.height();
}

FontMeasurer::FontWidths& FontMeasurer::widths(MeasuredFont font) const {
    if (desktopFont != QGuiApplication::font()) {
        desktopFont = QGuiApplication::font();
        known = {};
    }
    auto& entry = known[static_cast<std::size_t>(font)];
    if (!entry) {
        entry.emplace(fontFor(font));
    }
    return *entry;
}

}  // namespace quillon
