#include "Quillon/Platform/AppInfo.h"

#include "Quillon/Platform/Files/LogWriters.h"

namespace quillon {

QString appVersion() {
    const std::string_view version = programVersion();
    return QString::fromUtf8(version.data(), static_cast<qsizetype>(version.size()));
}

}  // namespace quillon
