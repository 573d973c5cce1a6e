// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/Labels.h"

#include <gtest/gtest.h>

#include <QTextDocument>

namespace quillon {
namespace {

TEST(ToolTip, IsPlainTextInLinesOfReadableLength) {
    for (const char* text :
         {"", "zwei\nZeilen", "ein kurzer Satz, der auf einer Zeile bleibt und nicht umbricht",
          "Frequenz <FREQ", "0 < 1"}) {
        EXPECT_EQ(plainToolTip(QString::fromUtf8(text)).toStdString(), text);
    }
    const QString words = plainToolTip(QStringLiteral("Wort ").repeated(100));
    EXPECT_GT(words.count(QLatin1Char('\n')), 3);
    EXPECT_EQ(words.count(QStringLiteral("Wort")), 100) << "no word is cut";
    EXPECT_GT(plainToolTip(QString(1000, QLatin1Char('x'))).count(QLatin1Char('\n')), 3);
    for (const char* markup : {"<b>fett</b>", "a &lt; b", "<br>"}) {
        const QString shown = plainToolTip(QString::fromUtf8(markup));
        EXPECT_FALSE(Qt::mightBeRichText(shown)) << markup;
        EXPECT_EQ(QString(shown).remove(QChar(0x2060)).toStdString(), markup);
    }
}

}  // namespace
}  // namespace quillon
