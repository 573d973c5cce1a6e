// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Support/OwnHome.h"

#include <gtest/gtest.h>

#include <QApplication>

int main(int count, char** arguments) {
    ::testing::InitGoogleTest(&count, arguments);
    const quillon::testing::OwnHome home;
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    // The style that is there on every machine, without the animations of a desktop.
    QApplication::setStyle(QStringLiteral("Fusion"));
    const QApplication application(count, arguments);
    return RUN_ALL_TESTS();
}
