#pragma once

class QWidget;

namespace quillon {

/// Tells over `window` what the program is, and its version.
void showAboutBox(QWidget& window);

}  // namespace quillon
