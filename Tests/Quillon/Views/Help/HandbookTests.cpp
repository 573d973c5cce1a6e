// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Support/StandIns.h"
#include "Quillon/Support/WidgetSearch.h"
#include "Quillon/Views/Controls/Colors.h"
#include "Quillon/Views/Help/HandbookDocument.h"
#include "Quillon/Views/Help/HandbookView.h"
#include "Quillon/Views/Help/HandbookWindow.h"
#include "Quillon/Views/Window/ShortcutList.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>
#include <QToolBar>
#include <QTreeWidget>

#include <functional>
#include <set>

namespace quillon {
namespace {

/// Calls `each` with the format of every run of text.
void walk(const QTextDocument& document, const std::function<void(const QTextCharFormat&)>& each) {
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto run = block.begin(); run != block.end(); ++run) {
            each(run.fragment().charFormat());
        }
    }
}

TEST(Handbook, HasEveryPictureAndEveryPartThatItNames) {
    const HandbookDocument book(handbookText() + shortcutChapter(), QPalette());
    int links = 0;
    int pictures = 0;
    walk(book, [&](const QTextCharFormat& format) {
        if (format.isImageFormat()) {
            ++pictures;
            const QString name = format.toImageFormat().name();
            EXPECT_FALSE(QImage(handbookPicture(name)).isNull()) << name.toStdString();
        } else if (format.isAnchor()) {
            ++links;
            const QUrl address(format.anchorHref());
            EXPECT_TRUE(address.scheme() == QStringLiteral("https") ||
                        (address.path().isEmpty() && book.headingAt(address.fragment())))
                << address.toString().toStdString();
        }
    });
    EXPECT_GT(links, 0);
    EXPECT_GT(pictures, 0);
}

TEST(Handbook, GivesEachHeadingAnAnchorOfItsOwn) {
    const HandbookDocument book(
        QStringLiteral("# Über „A/B“: 2 m\n\n## Teil\n\nText\n\n### Teil\n\n```\n## keiner\n```\n"),
        QPalette());
    std::string anchors;
    for (const HandbookHeading& heading : book.headings()) {
        anchors += std::to_string(heading.level) + heading.anchor.toStdString() + ' ';
    }
    EXPECT_EQ(anchors, "1über-ab-2-m 2teil 3teil-1 ");
}

TEST(Handbook, IsReadableInBothPalettes) {
    HandbookDocument book(handbookText(), QPalette());
    for (const auto& [ground, text, link] : {std::tuple(Qt::white, Qt::black, QColor(150, 190, 255)),
                                             std::tuple(Qt::black, Qt::white, QColor(0, 0, 120))}) {
        QPalette palette;
        palette.setColor(QPalette::Base, ground);
        palette.setColor(QPalette::Text, text);
        palette.setColor(QPalette::Link, link);
        book.setColors(palette);
        walk(book, [&, paper = QColor(ground)](const QTextCharFormat& format) {
            if (format.isAnchor()) {
                EXPECT_GE(contrast(format.foreground().color(), paper), textContrast);
            }
        });
    }
}

class HandbookOnScreen : public ::testing::Test {
  protected:
    void open(const QString& markdown = handbookText(), const QString& part = {}) {
        window.reset();
        window = std::make_unique<HandbookWindow>(markdown, settings);
        window->resize(700, 400);
        window->showPart(part);
        QApplication::processEvents();
    }
    HandbookView& view() const { return *window->findChild<HandbookView*>(); }
    QTreeWidget& contents() const { return *window->findChild<QTreeWidget*>(); }
    std::string current() const { return contents().currentItem()->text(0).toStdString(); }
    void press(QWidget& place, Qt::Key key, Qt::KeyboardModifiers keys = {}) {
        QTest::keyClick(&place, key, keys);
    }
    /// Types into the field for searching and gives what is said of the hits.
    std::string search(const char* text) {
        auto& field = testing::namedChild<QLineEdit>(*window, "Im Handbuch suchen");
        field.setText(QString::fromUtf8(text));
        return hits();
    }
    std::string hits() const { return testing::shownTexts(*window->findChild<QToolBar*>()); }

    testing::MemorySettings settings;
    std::unique_ptr<HandbookWindow> window;
};

TEST_F(HandbookOnScreen, ListsItsHeadingsAndFollowsTheReader) {
    open();
    QStringList written;
    bool isCode = false;
    for (const QString& line : handbookText().split(QLatin1Char('\n'))) {
        isCode = line.startsWith(QStringLiteral("```")) ? !isCode : isCode;
        if (line.startsWith(QLatin1Char('#')) && !isCode) {
            written.append(line.mid(line.indexOf(QLatin1Char(' ')) + 1));
        }
    }
    QStringList listed;
    for (QTreeWidgetItemIterator item(&contents()); *item != nullptr; ++item) {
        listed.append((*item)->text(0));
    }
    EXPECT_EQ(listed, written);

    std::set<std::string> seen;
    QScrollBar& bar = *view().verticalScrollBar();
    for (int value = 0; value < bar.maximum(); value += 50) {
        bar.setValue(value);
        seen.insert(current());
    }
    EXPECT_TRUE(seen.contains("Quillon: Handbuch") && seen.contains("Öffnen") && seen.contains("Statistik"));
    contents().setCurrentItem(contents().topLevelItem(contents().topLevelItemCount() - 1));
    EXPECT_EQ(current(), written.last().toStdString()) << "though it is too short to come to the top";
}

TEST_F(HandbookOnScreen, LeadsAlongLinksAndBack) {
    const QString filler = QStringLiteral("Zeile\n\n").repeated(60);
    open(QStringLiteral("# A\n\n[zu b](#b) [Netz](https://a.example/x) [Datei](file:///etc/passwd)\n\n") +
         filler + QStringLiteral("# B\n\n") + filler + QStringLiteral("# C\n\n") + filler);
    emit view().anchorClicked(QUrl(QStringLiteral("#b")));
    EXPECT_EQ(current(), "B");
    window->showPart(QStringLiteral("c"));
    press(view(), Qt::Key_Left, Qt::AltModifier);
    press(view(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(current(), "A");
    press(view(), Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(current(), "B");
    view().verticalScrollBar()->setValue(view().verticalScrollBar()->value() + 150);
    const int reading = view().verticalScrollBar()->value();
    window->showPart(QStringLiteral("a"));
    EXPECT_FALSE(testing::shownButton(*window, QStringLiteral("Vorwärts (Alt+Right)"))->isEnabled());
    view().backward();
    EXPECT_NEAR(view().verticalScrollBar()->value(), reading, 30) << "where the reader had come to";

    QSignalSpy asked(window.get(), &HandbookWindow::addressWanted);
    emit view().anchorClicked(QUrl(QStringLiteral("https://a.example/x")));
    emit view().anchorClicked(QUrl(QStringLiteral("file:///etc/passwd")));
    EXPECT_EQ(asked.size(), 1);
    QStringList told;
    walk(view().handbook(), [&](const QTextCharFormat& format) {
        if (format.isAnchor()) {
            told.append(format.toolTip());
        }
    });
    EXPECT_EQ(told.mid(0, 2).join(QLatin1Char('|')), QStringLiteral("B|https://a.example/x"));
}

TEST_F(HandbookOnScreen, OpensWithAPartNearTheEndAtTheTop) {
    open(handbookText() + shortcutChapter(), QStringLiteral("tastenkürzel"));
    EXPECT_LT(view().cursorRect().top(), 40);
    window->resize(1000, 400);
    EXPECT_LT(view().cursorRect().top(), 40) << "at another width";
}

TEST_F(HandbookOnScreen, ShowsPicturesAsWideAsTheyAreOrAsThePage) {
    open(QStringLiteral("![Das Bild](pictures/quillon.png)\n\n![Keines](pictures/nowhere.png)\n"));
    EXPECT_EQ(view().toPlainText().remove(QChar::ObjectReplacementCharacter),
              QStringLiteral("\nDas Bild\n\nKeines"));
    const QTextDocument& book = view().handbook();
    const auto widthOf = [&book](const QTextBlock& block) {
        return block.layout()->lineAt(0).naturalTextWidth();
    };
    const double margins = 2 * book.documentMargin();
    EXPECT_NEAR(widthOf(book.begin()), view().viewport()->width() - margins, 1);
    window->resize(2000, 400);
    QApplication::processEvents();
    EXPECT_EQ(widthOf(book.begin()), QImage(handbookPicture(QStringLiteral("pictures/quillon.png"))).width());
    EXPECT_EQ(widthOf(book.findBlockByNumber(2)), 1);
}

TEST_F(HandbookOnScreen, FindsAndCounts) {
    open(QStringLiteral("# Eins\n\nBake und BAKE\n\n") + QStringLiteral("Zeile\n\n").repeated(80) +
         QStringLiteral("| Kopf |\n|---|\n| die Bake |\n"));
    EXPECT_EQ(search("bake"), "1 von 3");
    EXPECT_EQ(view().extraSelections().size(), 3);
    press(view(), Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(hits(), "3 von 3") << "before the first comes the last";
    EXPECT_TRUE(view().viewport()->rect().contains(view().cursorRect()));
    press(view(), Qt::Key_F3);
    EXPECT_EQ(hits(), "1 von 3");
    EXPECT_EQ(search("Bakterie"), "Nicht gefunden");
    EXPECT_EQ(view().extraSelections().size(), 0);
    press(view(), Qt::Key_F3);
    EXPECT_EQ(search(""), "");
}

TEST_F(HandbookOnScreen, KeepsSizeAndLettersAndClosesWithEscape) {
    open();
    const double ordinary = view().font().pointSizeF();
    press(view(), Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_GT(view().font().pointSizeF(), ordinary);
    window->resize(820, 510);
    open();
    EXPECT_EQ(view().zoom(), 110);
    press(view(), Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(view().font().pointSizeF(), ordinary);
    search("Log");
    auto& field = testing::namedChild<QLineEdit>(*window, "Im Handbuch suchen");
    field.setFocus();
    press(field, Qt::Key_Escape);
    EXPECT_TRUE(window->isVisible() && field.text().isEmpty()) << "the search ends first";
    press(view(), Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
}

}  // namespace
}  // namespace quillon
