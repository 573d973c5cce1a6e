#include "Quillon/Platform/AppInfo.h"

namespace quillon {

QString appVersion() {
    const QString version = QStringLiteral(QUILLON_VERSION);
    return version.isEmpty() ? QStringLiteral("dev") : version;
}

}  // namespace quillon
