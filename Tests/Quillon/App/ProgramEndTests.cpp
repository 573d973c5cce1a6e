// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/App/ProgramEnd.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QGuiApplication>

#include <csignal>
#include <string>

namespace quillon {
namespace {

TEST(ProgramEnd, IsToldOnceAndInTime) {
    std::string told;
    const ProgramEnd ending(
        *qGuiApp,
        [&told](KeptReason reason) { told += reason == KeptReason::terminated ? "signal " : "other "; },
        [&told] { told += "session "; });
    std::raise(SIGHUP);
    std::raise(SIGTERM);
    EXPECT_EQ(told, "") << "nothing is done in the handler";
    EXPECT_EQ(QCoreApplication::exec(), 128 + SIGHUP);
    EXPECT_EQ(told, "signal ");
}

}  // namespace
}  // namespace quillon
