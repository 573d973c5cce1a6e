// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/Settings.h"

#include "Quillon/Stores/ValidationSettings.h"
#include "Quillon/Support/StandIns.h"
#include "Quillon/Support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <QDateTime>
#include <QSettings>

#include <utility>

namespace quillon {
namespace {

using testing::MemorySettings;

TEST(UserSettings, ComeBackInTheNextRunWithTheirTypes) {
    const testing::TemporaryFolder home;
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, home.path("."));
    const QDateTime moment(QDate(2024, 2, 29), QTime(12, 30), Qt::UTC);
    const auto first = userSettings();
    first->setValue("on", true);
    first->setValue("off", false);
    first->setValue("text", QString::fromUtf8(" 1,5; \"ü\" "));
    first->setValue("moment", moment);
    first->setValue("list", QStringList({"/a, b", "@/c"}));
    first->setValue("short list", QStringList("/a"));
    first->setValue("number", 320);
    first->setValue("bytes", QByteArray("\0\xff,", 3));
    QSettings(QSettings::IniFormat, QSettings::UserScope, "Quillon", "Quillon").sync();
    // Objects for one file share what they hold in memory; a copy of the file is read anew.
    ASSERT_TRUE(QDir(home.path(".")).mkpath("later/Quillon"));
    ASSERT_TRUE(QFile::copy(home.path("Quillon/Quillon.ini"), home.path("later/Quillon/Quillon.ini")));
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, home.path("later"));
    const auto later = userSettings();
    for (const Settings* settings : {first.get(), later.get()}) {
        EXPECT_TRUE(settings->boolean("on", false));
        EXPECT_FALSE(settings->boolean("off", true));
        EXPECT_EQ(settings->string("text"), QString::fromUtf8(" 1,5; \"ü\" "));
        EXPECT_EQ(settings->moment("moment"), moment);
        EXPECT_EQ(settings->strings("list"), QStringList({"/a, b", "@/c"}));
        EXPECT_EQ(settings->strings("short list"), QStringList("/a"));
        EXPECT_EQ(settings->number("number", 1), 320);
        EXPECT_EQ(settings->bytes("bytes"), QByteArray("\0\xff,", 3));
        // Of the wrong type or not there at all.
        EXPECT_TRUE(settings->string("on").isNull());
        EXPECT_FALSE(settings->boolean("text", false));
        EXPECT_FALSE(settings->moment("text"));
        EXPECT_FALSE(settings->moment("none"));
        EXPECT_TRUE(settings->boolean("none", true));
        EXPECT_EQ(settings->strings("on"), QStringList());
        EXPECT_EQ(settings->number("text", 1), 1);
        EXPECT_EQ(settings->bytes("number"), QByteArray());
    }
}

TEST(ValidatorSettings, ReachTheSwitchTheyAreNamedForAndCountUnknownValuesAsTheUsualOnes) {
    using tallyrig::ADIFValidator;
    const std::pair<const char*, bool ADIFValidator::*> switches[] = {
        {"checkRequired", &ADIFValidator::checksRequiredFields},
        {"checkFormat", &ADIFValidator::checksFormats},
        {"checkDuplicates", &ADIFValidator::checksDuplicates},
        {"checkUnknownFields", &ADIFValidator::checksUnknownFields},
    };
    for (const auto& [off, ofOff] : switches) {
        MemorySettings settings;
        EXPECT_TRUE(validatorFor(settings).*ofOff);
        settings.setValue(off, false);
        for (const auto& [key, member] : switches) {
            EXPECT_EQ(validatorFor(settings).*member, key != off) << off << key;
        }
    }
    MemorySettings settings;
    for (const auto& [criterion, keyFields] : {std::pair("call_band", 2U), {"call_only", 3U}}) {
        settings.setValue("duplicateCriterion", criterion);
        EXPECT_EQ(validatorFor(settings).duplicateKeyFields.size(), keyFields) << criterion;
    }
}

}  // namespace
}  // namespace quillon
