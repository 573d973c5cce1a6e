// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/AppInfo.h"

#include "Quillon/Catalogue/LogWriters.h"
#include "Tallyrig/Log/ProgramName.h"

#include <string_view>

namespace quillon {

namespace {

QString toQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

QString appName() {
    return toQString(tallyrig::programName);
}

QString appVersion() {
    return toQString(programVersion());
}

}  // namespace quillon
