// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/Libraries.h"

#include <archive.h>
#include <expat.h>
#include <fmt/core.h>
#include <oneapi/tbb/version.h>
#include <unicode/uversion.h>

#include <array>

namespace quillon {

namespace {

QString dotted(int major, int minor, int patch) {
    return QStringLiteral("%1.%2.%3").arg(major).arg(minor).arg(patch);
}

QString icuVersion() {
    UVersionInfo version = {};
    u_getVersion(version);
    std::array<char, U_MAX_VERSION_STRING_LENGTH> text = {};
    u_versionToString(version, text.data());
    return QString::fromLatin1(text.data());
}

QString expatVersion() {
    const XML_Expat_Version version = XML_ExpatVersionInfo();
    return dotted(version.major, version.minor, version.micro);
}

}  // namespace

QList<Library> linkedLibraries() {
    constexpr int hundred = 100;
    return {
        {QStringLiteral("Qt"), QString::fromLatin1(qVersion()), QStringLiteral("LGPL-3.0-only")},
        {QStringLiteral("ICU"), icuVersion(), QStringLiteral("Unicode-DFS-2016")},
        {QStringLiteral("oneTBB"), QString::fromLatin1(TBB_runtime_version()), QStringLiteral("Apache-2.0")},
        {QStringLiteral("Expat"), expatVersion(), QStringLiteral("MIT")},
        {QStringLiteral("{fmt}"),
         dotted(FMT_VERSION / (hundred * hundred), FMT_VERSION / hundred % hundred, FMT_VERSION % hundred),
         QStringLiteral("MIT")},
        // Loaded with the module that unpacks a release.
        {QStringLiteral("libarchive"), QStringLiteral(ARCHIVE_VERSION_ONLY_STRING),
         QStringLiteral("BSD-2-Clause")},
    };
}

}  // namespace quillon
