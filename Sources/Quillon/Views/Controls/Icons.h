// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Validation/ValidationKind.h"

#include <QIcon>
#include <QString>

namespace quillon {

/// The icon of this name from the Breeze theme, light or dark as the palette of the application is. It is
/// drawn from vectors at the size and pixel ratio that are asked for, and follows the palette: keep it as
/// long as you like. A path of our own resources, such as ":/Icons/close.svg", gives that picture; an unknown
/// name gives none.
QIcon icon(const QString& breezeName);

/// A filled octagon for an error, a filled triangle for a warning; the same in light and dark.
QIcon severityIcon(tallyrig::ValidationSeverity severity);

/// A shield with a check mark, for all that has to do with checking a log.
QIcon checkIcon();

/// What stands for "nothing found".
QIcon successIcon();

/// The icon of the program itself.
QIcon applicationIcon();

/// Takes the variant of the icon theme that suits the palette of the application. Icons that were handed out
/// before draw themselves anew. To be called whenever that palette changes; cheap if it stays light or dark.
void matchIconsToPalette();

}  // namespace quillon
