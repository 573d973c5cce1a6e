// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/Labels.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTextDocument>
#include <QVBoxLayout>

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

TEST(Labels, FollowTheFontOfTheDesktop) {
    QWidget window;
    auto* const column = new QVBoxLayout(&window);
    QLabel* const labels[] = {noteLabel("klein"), headingLabel("fett"), titleLabel("Titel"), figureLabel(2)};
    std::vector<double> before;
    for (QLabel* const label : labels) {
        column->addWidget(label);
        before.push_back(label->font().pointSizeF());
    }
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPointSizeF(usual.pointSizeF() * 2);
    QApplication::setFont(large);
    QApplication::processEvents();
    for (std::size_t label = 0; label < before.size(); ++label) {
        EXPECT_NEAR(labels[label]->font().pointSizeF(), before[label] * 2, 0.1) << label;
        EXPECT_EQ(labels[label]->font().bold(), label > 0);
    }
    QApplication::setFont(usual);
    QApplication::processEvents();
    EXPECT_NEAR(labels[0]->font().pointSizeF(), before[0], 0.1);
}

}  // namespace
}  // namespace quillon
