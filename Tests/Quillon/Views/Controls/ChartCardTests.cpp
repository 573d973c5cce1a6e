// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/ChartCard.h"

#include "Quillon/Support/BlankPainter.h"
#include "Quillon/Support/WidgetSearch.h"
#include "Quillon/Views/Controls/Chart.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QScrollBar>
#include <QTableView>
#include <QTest>

#include <memory>

namespace quillon {
namespace {

ChartData bandsOf(std::size_t count) {
    ChartData data{.title = QStringLiteral("QSOs pro Band"),
                   .word = QStringLiteral("Band"),
                   .labelAxis = QStringLiteral("Kategorie"),
                   .countAxis = QStringLiteral("QSOs"),
                   .entries = {},
                   .color = &BandPalette::color};
    for (std::size_t band = 0; band < count; ++band) {
        data.entries.push_back({.label = std::to_string(band + 1) + "m", .count = 1'000 + band, .day = {}});
    }
    return data;
}

class BarChart : public ::testing::Test {
  protected:
    void show(ChartData data) {
        card = std::make_unique<ChartCard>(&painter);
        card->resize(500, 400);
        card->setData(std::move(data));
        card->show();
        QApplication::processEvents();
    }
    Chart& chart() const { return *card->chart(); }
    std::string readoutAfter(Qt::Key key) const {
        QTest::keyClick(&chart(), key);
        return chart().readout().toStdString();
    }
    void choose(const char* command) const {
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(50, 50), card->mapToGlobal(QPoint(50, 50)));
        QApplication::sendEvent(card.get(), &event);
        for (QAction* action : card->findChild<QMenu*>()->actions()) {
            if (action->text() == QString::fromUtf8(command)) {
                action->trigger();
            }
        }
        delete card->findChild<QMenu*>();
    }
    static std::string clipboardText() { return QApplication::clipboard()->text().toStdString(); }

    testing::BlankPainter painter;
    std::unique_ptr<ChartCard> card;
};

TEST_F(BarChart, SaysWhatABarStandsForUnderThePointer) {
    show(bandsOf(3));
    QTest::mouseMove(&chart(), chart().places().barOf(1).center());
    EXPECT_EQ(chart().readout(), QStringLiteral("2m: 1.001 QSOs"));
    QEvent leaving(QEvent::Leave);
    QApplication::sendEvent(&chart(), &leaving);
    EXPECT_EQ(chart().readout(), QString());
}

TEST_F(BarChart, IsWalkedThroughWithTheKeyboard) {
    show(bandsOf(40));
    chart().setFocus();
    EXPECT_EQ(readoutAfter(Qt::Key_Right), "1m: 1.000 QSOs");
    EXPECT_EQ(readoutAfter(Qt::Key_Left), "1m: 1.000 QSOs");
    EXPECT_EQ(readoutAfter(Qt::Key_Right), "2m: 1.001 QSOs");
    EXPECT_EQ(readoutAfter(Qt::Key_PageDown), "12m: 1.011 QSOs");
    EXPECT_EQ(readoutAfter(Qt::Key_End), "40m: 1.039 QSOs");
    auto& bar = *testing::shownChild<QScrollBar>(*card);
    EXPECT_EQ(bar.value(), bar.maximum()) << "it came into sight";
    EXPECT_EQ(readoutAfter(Qt::Key_Home), "1m: 1.000 QSOs");
    EXPECT_EQ(bar.value(), 0);
    bar.setValue(3);
    EXPECT_EQ(chart().places().firstBar(), 3);

    card->setData(bandsOf(2));
    QTest::keyClick(&chart(), Qt::Key_End);
    card->setData(bandsOf(1));
    EXPECT_EQ(chart().readout(), QString()) << "that bar is gone";
    EXPECT_EQ(testing::shownChild<QScrollBar>(*card), nullptr);
}

TEST_F(BarChart, TellsAssistiveTechnologyOfItsBars) {
    show(bandsOf(40));
    chart().setFocus();
    QTest::keyClick(&chart(), Qt::Key_End);
    QAccessibleInterface* shown = QAccessible::queryAccessibleInterface(&chart());
    ASSERT_NE(shown, nullptr);
    EXPECT_EQ(shown->role(), QAccessible::Chart);
    EXPECT_EQ(shown->text(QAccessible::Name), QStringLiteral("QSOs pro Band"));
    ASSERT_EQ(shown->childCount(), 40);
    QAccessibleInterface* bar = shown->child(39);
    EXPECT_EQ(bar->text(QAccessible::Name), QStringLiteral("40m: 1.039 QSOs"));
    EXPECT_TRUE(bar->state().focused);
    EXPECT_EQ(shown->focusChild(), bar);
    EXPECT_EQ(shown->childAt(bar->rect().center().x(), bar->rect().center().y()), bar);
    EXPECT_TRUE(shown->child(0)->state().offscreen);
    card->setData(bandsOf(3));
    EXPECT_FALSE(bar->isValid());
}

TEST_F(BarChart, CopiesItsNumbersAndItsPicture) {
    show(bandsOf(2));
    choose("Zahlen kopieren");
    EXPECT_EQ(clipboardText(), "Band\tQSOs\n1m\t1000\n2m\t1001\n");
    choose("Diagramm kopieren");
    const QImage picture = QApplication::clipboard()->image();
    EXPECT_EQ(picture.width(), 2 * chart().width());
    EXPECT_GT(picture.height(), 2 * chart().height()) << "the title stands above";
}

TEST_F(BarChart, ShowsItsNumbersOnRequest) {
    show(bandsOf(3));
    EXPECT_EQ(card->findChild<QTableView*>(), nullptr);
    choose("Zahlen zeigen");
    auto& table = testing::namedChild<QTableView>(*card, "QSOs pro Band, Zahlen");
    EXPECT_TRUE(testing::isShown(table, *card));
    table.selectRow(2);
    table.selectionModel()->select(table.model()->index(0, 0),
                                   QItemSelectionModel::Select | QItemSelectionModel::Rows);
    QTest::keyClick(&table, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboardText(), "1m\t1000\n3m\t1002\n");
    card->setData(bandsOf(2));
    EXPECT_EQ(table.model()->rowCount(), 2);
    QTest::keyClick(testing::shownButton(*card, QStringLiteral("Zahlen zeigen")), Qt::Key_Return);
    EXPECT_FALSE(testing::isShown(table, *card));
}

TEST_F(BarChart, SortsItsNumbersByEitherColumnAndBack) {
    show(bandsOf(11));
    choose("Zahlen zeigen");
    auto& table = testing::namedChild<QTableView>(*card, "QSOs pro Band, Zahlen");
    const auto sorted = [&](int column) {
        table.setCurrentIndex(table.model()->index(0, column));
        QTest::keyClick(&table, Qt::Key_Return);
        table.selectAll();
        QTest::keyClick(&table, Qt::Key_C, Qt::ControlModifier);
        return QString::fromStdString(clipboardText()).split(u'\n').mid(0, 2).join(u' ').toStdString();
    };
    EXPECT_EQ(sorted(1), "11m\t1010 10m\t1009");
    card->setData(bandsOf(12));
    EXPECT_EQ(sorted(0), "1m\t1000 2m\t1001") << "2 stands before 10";
    EXPECT_EQ(sorted(0), "12m\t1011 11m\t1010");
    EXPECT_EQ(sorted(0), "1m\t1000 2m\t1001");
}

}  // namespace
}  // namespace quillon
