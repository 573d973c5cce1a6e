#pragma once

#include <QString>

namespace quillon {

/// The version of the application as text, "dev" if it has none.
QString appVersion();

}  // namespace quillon
