// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Updates/VersionInfo.h"

#include "Quillon/Updates/VersionOrder.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <variant>

namespace quillon {
namespace {

TEST(VersionOrder, ComparesRunsOfDigitsByTheirValueAndAllElseByCharacter) {
    const std::string nines(10'000, '9');
    const std::string ascending[] = {"",
                                     "0.3.9",
                                     "0.3.10",
                                     "1.0",
                                     "1.0-Beta",
                                     "1.0-beta",
                                     "1.0.0",
                                     "1.9",
                                     "1.10-rc.2",
                                     "1.10-rc.10",
                                     "1.10a",
                                     "1.010b",
                                     "2",
                                     "11",
                                     nines,
                                     "1" + nines,
                                     "1" + nines + ".1",
                                     "dev",
                                     "v1",
                                     "\xC3\xA4"
                                     "2",
                                     "\xC3\xA4"
                                     "10"};
    for (std::size_t right = 0; right < std::size(ascending); ++right) {
        for (std::size_t left = 0; left < right; ++left) {
            EXPECT_TRUE(compareVersions(ascending[left], ascending[right]) < 0) << left << " " << right;
            EXPECT_TRUE(compareVersions(ascending[right], ascending[left]) > 0) << left << " " << right;
        }
    }
    for (const auto& [left, right] : {std::pair("1.01", "1.1"), {"00", "0"}, {"\xC3\xA4", "a\xCC\x88"}}) {
        EXPECT_TRUE(compareVersions(left, right) == 0) << left;
    }
}

TEST(SystemVersion, IsThatOfTheKernelInThreeNumbers) {
    for (const auto& [release, version] : {std::pair("6.1.0-18-amd64", "6.1.0"),
                                           {"6.12-rc3", "6.12.0"},
                                           {"5.15.167.4-microsoft-standard", "5.15.167"},
                                           {"", "0.0.0"}}) {
        EXPECT_EQ(systemVersionOf(QLatin1String(release)).toStdString(), version);
    }
    EXPECT_NE(systemVersion(), QStringLiteral("0.0.0"));
}

/// A manifest with what is needed and `more`.
QByteArray manifest(const QByteArray& more = {}) {
    return R"({"version": "1.10", "releaseDate": "2024-03-05", "downloadUrl": "https://a.example/q.tar.xz")" +
           more + "}";
}

VersionInfo decoded(const QByteArray& json) {
    return std::get<VersionInfo>(VersionInfo::decode(json));
}

TEST(Manifest, GivesItsFields) {
    const VersionInfo least = decoded(manifest(R"(, "new": [{"deep": null}])"));
    EXPECT_EQ(least.version, "1.10");
    EXPECT_EQ(least.releaseDate, "2024-03-05");
    EXPECT_EQ(least.downloadUrl, "https://a.example/q.tar.xz");
    EXPECT_FALSE(least.build || least.releaseNotesUrl || least.minimumMacOSVersion || least.message ||
                 least.critical || least.sha256);
    const VersionInfo full = decoded(manifest(
        R"(, "build": "7", "releaseNotesUrl": "n", "minimumMacOSVersion": "6.1", "message": "<b>\u00e4</b>",
             "critical": true, "sha256": "ab")"));
    EXPECT_EQ(full.build, "7");
    EXPECT_EQ(full.releaseNotesUrl, "n");
    EXPECT_EQ(full.minimumMacOSVersion, "6.1");
    EXPECT_EQ(full.message, QString::fromUtf8("<b>ä</b>"));
    EXPECT_TRUE(full.critical);
    EXPECT_EQ(full.sha256, "ab");
}

TEST(Manifest, IsNoneWhereAKeyIsMissingOrOfTheWrongType) {
    const std::pair<QByteArray, const char*> cases[] = {
        {"", "Kein JSON, "},
        {"<html>", "Kein JSON, "},
        {manifest() + "x", "Kein JSON, "},
        {QByteArray(5'000, '['), "Kein JSON, "},
        {"{\"version\": \"\xFF\"}", "Kein JSON, "},
        {"[" + manifest() + "]", "Kein JSON-Objekt."},
        {"{}", "„version“ fehlt."},
        {R"({"version": "1", "downloadUrl": "d"})", "„releaseDate“ fehlt."},
        {R"({"version": "1", "releaseDate": "d"})", "„downloadUrl“ fehlt."},
        {R"({"version": 1.2, "releaseDate": "d", "downloadUrl": "d"})", "„version“ ist kein Text."},
        {manifest(R"(, "build": 7)"), "„build“ ist kein Text."},
        {manifest(R"(, "releaseNotesUrl": [])"), "„releaseNotesUrl“ ist kein Text."},
        {manifest(R"(, "minimumMacOSVersion": 13.0)"), "„minimumMacOSVersion“ ist kein Text."},
        {manifest(R"(, "message": {})"), "„message“ ist kein Text."},
        {manifest(R"(, "sha256": null)"), "„sha256“ ist kein Text."},
        {manifest(R"(, "critical": "true")"), "„critical“ ist weder wahr noch falsch."},
        {manifest(R"(, "critical": 1)"), "„critical“ ist weder wahr noch falsch."},
    };
    for (const auto& [json, why] : cases) {
        const auto result = VersionInfo::decode(json);
        ASSERT_TRUE(std::holds_alternative<QString>(result)) << json.constData();
        EXPECT_TRUE(std::get<QString>(result).startsWith(QString::fromUtf8(why))) << json.constData();
    }
}

TEST(Decision, GoesBySkippedThenVersionThenSystem) {
    using enum VersionInfo::Decision;
    struct Case {
        const char* more;
        const char* current;
        QString skipped;
        VersionInfo::Decision decision;
    };
    const Case cases[] = {
        {"", "1.9", {}, updateAvailable},
        {"", "1.10", {}, upToDate},
        {"", "1.11", {}, upToDate},
        {"", "dev", {}, upToDate},
        {"", "1.9", "1.10", skipped},
        {"", "1.10", "1.10", skipped},
        {"", "1.9", "1.010", updateAvailable},
        {"", "1.9", "", updateAvailable},
        {R"(, "critical": true)", "1.9", "1.10", updateAvailable},
        {R"(, "critical": false)", "1.9", "1.10", skipped},
        {R"(, "minimumMacOSVersion": "6.1.10")", "1.9", {}, osTooOld},
        {R"(, "minimumMacOSVersion": "6.1.9")", "1.9", {}, updateAvailable},
        {R"(, "minimumMacOSVersion": "6.1")", "1.9", {}, updateAvailable},
        {R"(, "minimumMacOSVersion": "7")", "1.10", {}, upToDate},
        {R"(, "minimumMacOSVersion": "7", "critical": true)", "1.9", "1.10", osTooOld},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(decoded(manifest(one.more)).decision(one.current, one.skipped, "6.1.9"), one.decision)
            << one.more << " " << one.current << " " << one.skipped.toStdString();
    }
}

TEST(Release, IsInstalledOnlyWithAChecksum) {
    for (const auto& [more, can] : {std::pair("", false),
                                    {R"(, "sha256": "")", false},
                                    {R"(, "sha256": " \n\u00a0")", false},
                                    {R"(, "sha256": " AB ")", true}}) {
        EXPECT_EQ(decoded(manifest(more)).canAutoInstall(), can) << more;
    }
}

TEST(Release, HasItsDayAsItIsWrittenInGermanSwitzerland) {
    for (const auto& [written, shown] : {std::pair("2024-03-05", "05.03.2024"),
                                         {"2024-03-05T11:00:00Z", "05.03.2024"},
                                         {"2024-03-05T11:00:00.123Z", "05.03.2024"},
                                         {"2024-03-05T11:00:00", "05.03.2024"},
                                         {"2024-02-30", "2024-02-30"},
                                         {"2024-03-05 soon", "2024-03-05 soon"},
                                         {"<b>heute</b>", "<b>heute</b>"},
                                         {"", ""}}) {
        VersionInfo info;
        info.releaseDate = QString::fromUtf8(written);
        EXPECT_EQ(info.releaseDay().toStdString(), shown);
    }
}

}  // namespace
}  // namespace quillon
