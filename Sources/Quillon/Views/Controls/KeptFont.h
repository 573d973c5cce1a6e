// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>

#include <functional>

class QWidget;

namespace quillon {

/// Gives `widget`, which stands in another, the font of `font` now, and anew whenever the font of the desktop
/// changes: a widget with a size of its own is not told of that.
void keepFont(QWidget& widget, std::function<QFont()> font);

}  // namespace quillon
