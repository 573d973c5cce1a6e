// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Support/OwnHome.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

int main(int count, char** arguments) {
    ::testing::InitGoogleTest(&count, arguments);
    const quillon::testing::OwnHome home;
    const QCoreApplication application(count, arguments);
    return RUN_ALL_TESTS();
}
