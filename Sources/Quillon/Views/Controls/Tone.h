// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QPalette>

namespace quillon {

/// How a figure strikes the reader. The colour only underlines what the figure says itself.
enum class Tone { plain, good, warning, error };

/// The colour of text in this tone on `ground`, where it can be read.
QColor toneColor(Tone tone, const QPalette& palette, const QColor& ground);

}  // namespace quillon
