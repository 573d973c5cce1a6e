// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/ChartGeometry.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

using Form = ChartData::Form;
using std::chrono::days;
using std::chrono::sys_days;

/// Letters of 8 by 16 pixels.
ChartLetters letters() {
    return {.lineHeight = 16,
            .width = [](const QString& text) { return 8.0 * static_cast<double>(text.size()); },
            .elided =
                [](const QString& text, double width) {
                    const auto fits = static_cast<qsizetype>(width / 8);
                    return text.size() <= fits ? text : text.left(fits - 1) + QChar(u'…');
                }};
}

ChartData counted(Form form, const std::vector<std::size_t>& counts) {
    ChartData data;
    data.form = form;
    for (const std::size_t count : counts) {
        data.entries.push_back(
            {.label = "B" + std::to_string(data.entries.size()), .count = count, .day = {}});
    }
    return data;
}

/// Of one QSO on each day, if no others are named.
ChartData dated(const std::vector<int>& daysFromFirst) {
    const sys_days first = std::chrono::year(1999) / std::chrono::December / 31;
    ChartData data = counted(Form::days, std::vector<std::size_t>(daysFromFirst.size(), 1));
    for (std::size_t entry = 0; entry < daysFromFirst.size(); ++entry) {
        data.entries[entry].day = first + days(daysFromFirst[entry]);
    }
    return data;
}

std::string text(const std::vector<ChartGeometry::Tick>& ticks) {
    std::string all;
    for (const ChartGeometry::Tick& tick : ticks) {
        all += (all.empty() ? "" : "|") + tick.label.toStdString();
    }
    return all;
}

TEST(BarsBesideEachOther, StandOnTheAxisAndAreAsHighAsTheirCounts) {
    const ChartData data = counted(Form::columns, {50, 100, 1, 0});
    const ChartGeometry places(data, {400, 200}, 0, letters());
    ASSERT_EQ(places.bars().size(), 4);
    EXPECT_EQ(text(places.countTicks()), "0|50|100");
    EXPECT_EQ(places.countTicks().back().at, 0);
    EXPECT_EQ(text(places.labelTicks()), "B0|B1|B2|B3");
    const QRect highest = places.bars()[1].area;
    EXPECT_EQ(highest.height(), places.plot().height());
    EXPECT_EQ(places.bars()[0].area.height(), places.plot().height() / 2);
    EXPECT_EQ(places.bars()[3].area.height(), 2) << "a bar of nothing can still be pointed at";
    EXPECT_EQ(places.bars()[3].area.bottom(), places.plot().bottom());
    EXPECT_EQ(places.bars()[1].annotation, QStringLiteral("100"));
    EXPECT_NEAR(QRectF(highest).center().x(), places.plot().left() + places.labelTicks()[1].at, 1);
    EXPECT_TRUE(QRect(QPoint(), places.size()).contains(places.plot()));
}

TEST(BarsBesideEachOther, KeepRoomForTheirLabelsAndComeIntoSightInTurn) {
    std::vector<std::size_t> counts(40);
    for (std::size_t bar = 0; bar < counts.size(); ++bar) {
        counts[bar] = 1'000'000 - bar;
    }
    const ChartData data = counted(Form::columns, counts);
    const ChartGeometry places(data, {400, 200}, 0, letters());
    const std::size_t inSight = places.barsInSight();
    EXPECT_LT(inSight, 6) << "numbers of nine letters";
    EXPECT_EQ(places.bars().size(), inSight);
    const int wide = static_cast<int>(ChartGeometry::width(data, letters())) + 2;
    EXPECT_EQ(ChartGeometry(data, {wide, 200}, 0, letters()).barsInSight(), 40);
    EXPECT_LT(ChartGeometry(data, {wide - 20, 200}, 0, letters()).barsInSight(), 40);
    EXPECT_GE((places.bars()[1].area.center() - places.bars()[0].area.center()).x(), 72);

    const ChartGeometry end(data, {400, 200}, 1000, letters());
    EXPECT_EQ(end.firstBar(), 40 - inSight);
    EXPECT_EQ(end.bars().back().entry, 39);
    EXPECT_EQ(text(end.countTicks()), text(places.countTicks())) << "the scale is that of all bars";
    EXPECT_EQ(end.barOf(0), QRect());
    EXPECT_EQ(end.firstBarToShow(0), 0);
    EXPECT_EQ(places.firstBarToShow(39), 40 - inSight);
    EXPECT_EQ(end.firstBarToShow(38), end.firstBar());
}

TEST(BarsBesideEachOther, CutOffLongLabels) {
    ChartData data = counted(Form::columns, {1, 2});
    data.entries[0].label = std::string(100'000, 'W');
    const ChartGeometry places(data, {300, 200}, 0, letters());
    EXPECT_EQ(places.barsInSight(), 2);
    EXPECT_EQ(places.labelTicks()[0].label.back(), QChar(u'…'));
}

TEST(BarsBelowEachOther, AreAsManyAsAreWantedAndLeaveRoomForTheirNumbers) {
    ChartData data = counted(Form::rows, std::vector<std::size_t>(20, 12'345));
    data.mostBars = 15;
    const int height = ChartGeometry::height(data, letters());
    const ChartGeometry places(data, {400, height}, 0, letters());
    EXPECT_EQ(places.bars().size(), 15);
    EXPECT_EQ(places.barsInSight(), 15);
    EXPECT_LT(places.bars()[0].area.bottom(), places.bars()[1].area.top());
    EXPECT_GE(400 - places.plot().right(), 6 * 8);
    data.mostBars = 5;
    EXPECT_LT(ChartGeometry::height(data, letters()), height);
}

TEST(DaysOnAnAxis, StandApartAsTheyLieInTime) {
    const ChartData data = dated({0, 1, 10});
    const ChartGeometry places(data, {600, 200}, 0, letters());
    ASSERT_EQ(places.bars().size(), 3);
    const auto left = [&places](std::size_t bar) { return places.bars()[bar].area.left(); };
    EXPECT_NEAR(left(2) - left(0), 10 * (left(1) - left(0)), 10);
    EXPECT_TRUE(places.plot().contains(places.bars()[2].area));
    EXPECT_EQ(text(places.labelTicks()).substr(0, 24), "31.12.\n1999|02.01.\n2000|");
}

TEST(DaysOnAnAxis, AreOneBarIfThereIsOne) {
    const ChartData data = dated({0});
    const ChartGeometry places(data, {600, 200}, 0, letters());
    EXPECT_EQ(text(places.labelTicks()), "31.12.\n1999");
    EXPECT_LT(places.bars()[0].area.width(), 50);
    EXPECT_NEAR(QRectF(places.bars()[0].area).center().x(), QRectF(places.plot()).center().x(), 1);
}

TEST(DaysOnAnAxis, AreNotPushedTogetherByOneThatIsFarOff) {
    const ChartData data = dated({0, 1, 365, 2'000'000});
    const ChartGeometry places(data, {600, 200}, 0, letters());
    ASSERT_EQ(places.bars().size(), 4);
    const auto left = [&places](std::size_t bar) { return places.barOf(bar).left(); };
    EXPECT_GT(left(2) - left(0), places.plot().width() / 2);
    EXPECT_TRUE(places.plot().contains(places.barOf(3)));
    EXPECT_TRUE(text(places.labelTicks()).ends_with("|…|24.10.\n7475")) << text(places.labelTicks());
    // So many of them leave no room.
    const ChartGeometry crowded(dated({0, 20'000, 40'000, 60'000, 80'000, 100'000}), {600, 200}, 0,
                                letters());
    EXPECT_EQ(text(crowded.labelTicks()).find("…"), std::string::npos);
}

TEST(DaysOnAnAxis, CoverEachOtherOnOnePixelButAreAllThere) {
    std::vector<int> tenThousandYears;
    for (int day = 0; day < 3'650'000; day += 100) {
        tenThousandYears.push_back(day);
    }
    ChartData data = dated(tenThousandYears);
    data.entries[1'234].count = 500;
    const ChartGeometry places(data, {600, 200}, 0, letters());
    EXPECT_LE(places.bars().size(), places.plot().width());
    std::size_t highest = 0;
    for (const ChartGeometry::Bar& bar : places.bars()) {
        highest = std::max(highest, data.entries[bar.entry].count);
    }
    EXPECT_EQ(highest, 500);
    EXPECT_EQ(places.barCount(), tenThousandYears.size());
    EXPECT_EQ(places.barOf(1'235).left(), places.barOf(1'234).left());
    EXPECT_EQ(places.barOf(1'235).height(), 2);
}

TEST(ThePointer, MeansTheBarInItsSlotOrTheDayNearBy) {
    const ChartData columns = counted(Form::columns, {3, 2, 1});
    const ChartGeometry beside(columns, {400, 200}, 0, letters());
    const QRect plot = beside.plot();
    EXPECT_EQ(beside.entryAt(QPointF(plot.right(), plot.top() + 1)), 2) << "high above its bar";
    EXPECT_EQ(beside.entryAt(QPointF(plot.left() + 1, plot.top() + 1)), 0);
    EXPECT_EQ(beside.entryAt(QPointF(plot.left() - 5, plot.top() + 1)), std::nullopt);

    const ChartData rows = counted(Form::rows, {3, 2, 1});
    const ChartGeometry below(rows, {400, ChartGeometry::height(rows, letters())}, 0, letters());
    EXPECT_EQ(below.entryAt(QPointF(below.plot().right(), below.plot().bottom())), 2);

    const ChartData data = dated({0, 40, 41, 400});
    const ChartGeometry time(data, {600, 200}, 0, letters());
    const auto at = [&time](std::size_t entry, int away) {
        return time.entryAt(QPointF(time.barOf(entry).left() + away, time.plot().top() + 3));
    };
    EXPECT_EQ(at(0, 5), 0);
    EXPECT_EQ(at(1, 0), 1);
    EXPECT_EQ(at(2, 6), 2);
    EXPECT_EQ(at(2, 30), std::nullopt);
    EXPECT_EQ(at(3, -7), 3);
    EXPECT_EQ(ChartGeometry(ChartData{}, {400, 200}, 0, letters()).entryAt({100, 100}), std::nullopt);
}

}  // namespace
}  // namespace quillon
