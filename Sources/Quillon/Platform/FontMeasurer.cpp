#include "Quillon/Platform/FontMeasurer.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QString>

#include <cstddef>

namespace quillon {

namespace {

/// The small size stands to the system size as a caption stands to running text.
constexpr double smallFactor = 0.86;

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

double FontMeasurer::width(MeasuredFont font, std::string_view text) const {
    return metrics(font).horizontalAdvance(
        QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
}

const QFontMetricsF& FontMeasurer::metrics(MeasuredFont font) const {
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
