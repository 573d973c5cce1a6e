// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

namespace quillon {

/// Tells over `window` what the program is, and its version.
void showAboutBox(QWidget& window);

}  // namespace quillon
