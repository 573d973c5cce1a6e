// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Catalogue/BandColors.h"

#include <QColor>
#include <QList>
#include <QPalette>

class QWidget;

namespace quillon {

/// The colour as the screen shows it.
QColor screenColor(const PaletteColor& color);

/// The same colour, seen through as far as `opacity` (0 to 1) says.
QColor withOpacity(QColor color, double opacity);

/// `above`, of which `share` (0 to 1) covers `below`: what is seen where a translucent colour is painted.
QColor blended(const QColor& above, double share, const QColor& below);

/// What small text needs to be read against its ground.
inline constexpr double textContrast = 4.5;
/// What a frame, a mark or a line that tells something needs.
inline constexpr double shapeContrast = 3;

/// How well two opaque colours are told apart, by the ratio that the guidelines for accessible content
/// reckon with: from 1 for the same to 21 for black on white. The order does not matter.
double contrast(const QColor& one, const QColor& other);

/// `color` where it stands out by at least `least` from each of `grounds`; otherwise the nearest shade of it
/// towards black or white that does. Grounds too far apart for any shade give the better of black and white.
/// All colours are opaque.
QColor standingOut(const QColor& color, const QList<QColor>& grounds, double least);

/// The colour of remarks and of all that stands back behind the text proper, to be read on each ground on
/// which the panes of a window in `palette` put text. Follows from text and grounds alone.
QColor secondaryTextColor(const QPalette& palette, QPalette::ColorGroup group = QPalette::Active);

/// Lets what is chosen in `list` stand back in the palette of its rows while the keyboard is elsewhere.
void calmSelection(QPalette& palette, const QWidget* list);

/// Makes those colours of the whole application readable that often are not as a desktop hands them out: text
/// that is chosen (on the desktop's accent), links, and secondary text and placeholders, which become
/// `secondaryTextColor` (`QPalette::PlaceholderText`). To be called whenever the palette of the application
/// changes; all other colours go on following the desktop.
void makePaletteReadable();

}  // namespace quillon
