// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/StateFolder.h"

#include <gtest/gtest.h>

#include <QDir>

namespace quillon {
namespace {

TEST(StateFolder, LiesWhereTheUserWantsOrAsUsual) {
    const QByteArray before = qgetenv("XDG_STATE_HOME");
    const QString usual = QDir::homePath() + "/.local/state/quillon";
    for (const auto& [given, expected] : std::initializer_list<std::pair<const char*, QString>>{
             {"/tmp/Zustand ä", "/tmp/Zustand ä/quillon"}, {"relative", usual}, {"", usual}}) {
        qputenv("XDG_STATE_HOME", given);
        EXPECT_EQ(stateFolder(), expected) << given;
    }
    qputenv("XDG_STATE_HOME", before);
}

}  // namespace
}  // namespace quillon
