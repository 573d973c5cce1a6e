// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quillon {

/// The name of the application, for windows, menus and the folder of its settings.
QString appName();

/// The version of the application as text, "dev" if it has none.
QString appVersion();

}  // namespace quillon
