#pragma once

#include "Quillon/Catalogue/BandColors.h"

#include <QColor>

namespace quillon {

/// The colour as the screen shows it.
QColor screenColor(const PaletteColor& color);

/// The same colour, seen through as far as `opacity` (0 to 1) says.
QColor withOpacity(QColor color, double opacity);

}  // namespace quillon
