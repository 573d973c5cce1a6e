#include "Quillon/Platform/Settings.h"

#include "Quillon/Stores/ValidationSettings.h"
#include "Quillon/Support/StandIns.h"
#include "Quillon/Support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <QDateTime>
#include <QSettings>

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
    first->setValue("version", "3.1.7");
    first->setValue("text", QString::fromUtf8(" 1,5; \"ü\" "));
    first->setValue("moment", moment);
    QSettings(QSettings::IniFormat, QSettings::UserScope, "Quillon", "Quillon").sync();
    // Objects for one file share what they hold in memory; a copy of the file is read anew.
    ASSERT_TRUE(QDir(home.path(".")).mkpath("later/Quillon"));
    ASSERT_TRUE(QFile::copy(home.path("Quillon/Quillon.ini"), home.path("later/Quillon/Quillon.ini")));
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, home.path("later"));
    const auto later = userSettings();
    for (const Settings* settings : {first.get(), later.get()}) {
        EXPECT_TRUE(settings->boolean("on", false));
        EXPECT_FALSE(settings->boolean("off", true));
        EXPECT_EQ(settings->string("version"), "3.1.7");
        EXPECT_EQ(settings->string("text"), QString::fromUtf8(" 1,5; \"ü\" "));
        EXPECT_EQ(settings->value("moment").toDateTime(), moment);
        // Of the wrong type or not there at all.
        EXPECT_TRUE(settings->string("on").isNull());
        EXPECT_TRUE(settings->boolean("version", true));
        EXPECT_FALSE(settings->boolean("version", false));
        EXPECT_TRUE(settings->boolean("moment", true));
        EXPECT_TRUE(settings->string("none").isNull());
    }
}

TEST(ValidatorSettings, CountMissingAndUnknownValuesAsTheUsualOnes) {
    MemorySettings settings;
    EXPECT_EQ(currentDuplicateCriterion(settings), DuplicateCriterion::callBandMode);
    EXPECT_TRUE(validatorFor(settings).checksUnknownFields);
    settings.setValue(setting::duplicateCriterion, "call_only");
    settings.setValue(setting::checkUnknownFields, "false");
    EXPECT_EQ(currentDuplicateCriterion(settings), DuplicateCriterion::callBandMode);
    EXPECT_TRUE(validatorFor(settings).checksUnknownFields);
}

TEST(ValidatorSettings, ReachTheSwitchTheyAreNamedFor) {
    const struct {
        QString key;
        bool tallyrig::ADIFValidator::*member;
    } cases[] = {
        {"checkRequired", &tallyrig::ADIFValidator::checksRequiredFields},
        {"checkFormat", &tallyrig::ADIFValidator::checksFormats},
        {"checkDuplicates", &tallyrig::ADIFValidator::checksDuplicates},
        {"checkUnknownFields", &tallyrig::ADIFValidator::checksUnknownFields},
    };
    for (const auto& off : cases) {
        MemorySettings settings;
        settings.setValue(off.key, false);
        settings.setValue("duplicateCriterion", "call_band");
        const tallyrig::ADIFValidator validator = validatorFor(settings);
        EXPECT_EQ(validator.duplicateKeyFields, (std::vector<std::string>{"CALL", "BAND"}));
        EXPECT_EQ(validator.requiredFields,
                  (std::vector<std::string>{"CALL", "QSO_DATE", "TIME_ON", "BAND", "MODE"}));
        for (const auto& each : cases) {
            EXPECT_EQ(validator.*each.member, each.key != off.key) << each.key.toStdString();
        }
    }
}

}  // namespace
}  // namespace quillon
