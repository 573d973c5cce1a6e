// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/NoticeStrip.h"

#include "Quillon/Support/WidgetSearch.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

#include <string>

namespace quillon {
namespace {

class Notices : public ::testing::Test {
  protected:
    void tell(const QString& topic, const QString& text) {
        strip.tell(
            {topic,
             text,
             Notice::Kind::information,
             {{QStringLiteral("Tun"), [this, topic] { happened += "run " + topic.toStdString() + ' '; }}},
             [this, topic] { happened += "closed " + topic.toStdString() + ' '; }});
    }
    void press(const QString& text) { testing::shownButton(strip, text)->click(); }
    std::string shown() const { return strip.isHidden() ? "(hidden)" : testing::shownTexts(strip); }

    QWidget window;
    QLineEdit field{&window};
    NoticeStrip strip{&window};
    std::string happened;
};

TEST_F(Notices, AreToldOneAfterTheOther) {
    EXPECT_EQ(shown(), "(hidden)");
    tell("a", "first");
    EXPECT_EQ(shown(), "first");
    tell("b", "second");
    tell("c", "third");
    EXPECT_EQ(shown(), "first\n1 von 3");
    tell("a", "first anew");
    EXPECT_EQ(shown(), "first anew\n1 von 3");
    EXPECT_TRUE(strip.withdraw("b"));
    EXPECT_FALSE(strip.withdraw("b"));
    press("Tun");
    EXPECT_EQ(shown(), "third");
    press("Meldung schließen");
    EXPECT_EQ(shown(), "(hidden)");
    EXPECT_EQ(happened, "run a closed c ");
}

TEST_F(Notices, AreEnteredByTheKeyboardWhereTheUserAsksForThem) {
    tell("a", "first");
    strip.tellAtOnce({"b", "urgent", Notice::Kind::warning, {{"Jetzt", {}}}, {}});
    EXPECT_EQ(shown(), "urgent\n1 von 2");
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    field.setFocus();
    EXPECT_FALSE(strip.enter("c"));
    EXPECT_TRUE(field.hasFocus());
    EXPECT_TRUE(strip.enter("a"));
    EXPECT_EQ(shown(), "first\n1 von 2");
    EXPECT_TRUE(testing::shownButton(strip, "Tun")->hasFocus());
}

TEST_F(Notices, AreToldAsWarningsFirst) {
    tell("a", "first");
    strip.tell({"b", "warning", Notice::Kind::warning, {{"Jetzt", {}}}, {}});
    strip.tell({"c", "another", Notice::Kind::warning, {}, {}});
    EXPECT_EQ(shown(), "warning\n1 von 3");
    press("Jetzt");
    EXPECT_EQ(shown(), "another\n1 von 2");
    strip.withdraw("c");
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    testing::shownButton(strip, "Tun")->setFocus();
    strip.tell({"c", "another", Notice::Kind::warning, {}, {}});
    EXPECT_EQ(shown(), "first\n1 von 2") << "the keyboard is on its button";
}

TEST_F(Notices, WhatIsDoneMayTellSomethingElse) {
    strip.tell({"a", "first", Notice::Kind::information, {{"Tun", [this] { tell("b", "failed"); }}}, {}});
    press("Tun");
    EXPECT_EQ(shown(), "failed");
}

TEST_F(Notices, GiveTheKeyboardBackWhenTheyHadIt) {
    QSignalSpy left(&strip, &NoticeStrip::left);
    tell("a", "first");
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    field.setFocus();
    press("Meldung schließen");
    EXPECT_EQ(left.size(), 0);
    tell("a", "first");
    testing::shownButton(strip, "Tun")->setFocus();
    QTest::keyClick(testing::shownButton(strip, "Tun"), Qt::Key_Escape);
    EXPECT_EQ(happened, "closed a closed a ");
    EXPECT_EQ(left.size(), 1);
}

}  // namespace
}  // namespace quillon
