// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/BoundedField.h"

#include "Quillon/Support/WidgetSearch.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>

namespace quillon {
namespace {

template <typename Field>
void paste(const Field& field, const QString& text) {
    QGuiApplication::clipboard()->setText(text);
    field.editor().paste();
}

TEST(BoundedField, TakesWhatItHasRoomForAndSaysSo) {
    const std::string cut = "Gekürzt: Das Feld fasst höchstens 10 Zeichen.";
    BoundedLine line(10);
    line.setText("1234567");
    EXPECT_EQ(testing::shownTexts(line), "");
    paste(line, QStringLiteral("89abc"));
    EXPECT_EQ(line.editor().text().toStdString(), "123456789a");
    EXPECT_EQ(testing::shownTexts(line), cut);
    QTest::keyClick(&line.editor(), Qt::Key_Backspace);
    EXPECT_EQ(testing::shownTexts(line), "");
    line.setText("123456789ä");
    EXPECT_EQ(line.editor().text().toStdString(), "123456789") << "no letter is halved";
    EXPECT_EQ(testing::shownTexts(line), cut);

    BoundedText text(10, 3);
    paste(text, QStringLiteral("1234\n5678"));
    EXPECT_EQ(testing::shownTexts(text), "");
    paste(text, QStringLiteral("\U0001F4FB"));
    EXPECT_EQ(text.editor().toPlainText().toStdString(), "1234\n5678") << "no letter is halved";
    EXPECT_EQ(testing::shownTexts(text), cut);
    text.editor().selectAll();
    paste(text, QStringLiteral("1234567890"));
    EXPECT_EQ(text.editor().toPlainText().toStdString(), "1234567890") << "what is replaced makes room";
}

}  // namespace
}  // namespace quillon
