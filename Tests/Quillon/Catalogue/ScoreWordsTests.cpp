// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Catalogue/ScoreWords.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <utility>

namespace quillon {
namespace {

TEST(ScoreWords, GroupTheDigits) {
    const std::pair<std::int64_t, const char*> cases[] = {
        {0, "0"},
        {999, "999"},
        {-999, "-999"},
        {1000, "1.000"},
        {-123456, "-123.456"},
        {1234567, "1.234.567"},
        {std::numeric_limits<std::int64_t>::min(), "-9.223.372.036.854.775.808"},
    };
    for (const auto& [number, text] : cases) {
        EXPECT_EQ(ScoreWords::number(number), text);
    }
}

TEST(ScoreWords, TellHowTheTotalComesAbout) {
    tallyrig::ContestScore score;
    EXPECT_EQ(ScoreWords::formula(score), "0 QSO-Punkte (keine Multiplikatoren)");
    score.qsoPoints = 1200;
    score.multiplierBreakdown = {{"Zonen", 0}};
    EXPECT_EQ(ScoreWords::formula(score), "1.200 QSO-Punkte × 0 Multiplikatoren");
}

TEST(ScoreWords, PutTheDuplicateInFrontOfTheProblems) {
    tallyrig::ContestQSOResult qso;
    EXPECT_EQ(ScoreWords::reason(qso), "");
    qso.problems = {"Band fehlt", "CQZ fehlt"};
    EXPECT_EQ(ScoreWords::reason(qso), "Band fehlt, CQZ fehlt");
    qso.isDupe = true;
    EXPECT_EQ(ScoreWords::reason(qso), "Dublette, Band fehlt, CQZ fehlt");
}

}  // namespace
}  // namespace quillon
