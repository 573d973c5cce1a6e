// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/Tone.h"

#include "Quillon/Views/Controls/Colors.h"

namespace quillon {

namespace {

QColor meantColor(Tone tone, const QPalette& palette) {
    switch (tone) {
        case Tone::good:
            return screenColor(SystemColor::green);
        case Tone::warning:
            return screenColor(SystemColor::orange);
        case Tone::error:
            return screenColor(SystemColor::red);
        case Tone::plain:
            break;
    }
    return palette.color(QPalette::Text);
}

}  // namespace

QColor toneColor(Tone tone, const QPalette& palette, const QColor& ground) {
    return standingOut(meantColor(tone, palette), {ground}, textContrast);
}

}  // namespace quillon
