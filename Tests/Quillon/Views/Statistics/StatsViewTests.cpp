// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Statistics/StatsView.h"

#include "Quillon/Support/BlankPainter.h"
#include "Quillon/Support/LogStoreFixture.h"
#include "Quillon/Support/WidgetSearch.h"
#include "Quillon/Views/Controls/Chart.h"
#include "Quillon/Views/Statistics/StatisticsCharts.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QSignalSpy>
#include <QTableView>

#include <memory>

namespace quillon {
namespace {

class Statistics : public testing::LogStoreTest {
  protected:
    void show() { show(&blank); }
    void show(ChartPainter* painter) {
        view = std::make_unique<StatsView>(store, painter);
        view->resize(900, 700);
        view->show();
    }
    std::string texts() const { return testing::shownTexts(*view); }
    const Chart& chart(const char* title) const { return testing::namedChild<Chart>(*view, title); }
    /// The bars of a chart, each as it is read out.
    std::string bars(const char* title) const {
        std::string all;
        for (std::size_t bar = 0; bar < chart(title).data().barCount(); ++bar) {
            all += (all.empty() ? "" : " | ") + chart(title).data().sentence(bar).toStdString();
        }
        return all;
    }

    testing::BlankPainter blank;
    std::unique_ptr<StatsView> view;
};

TEST_F(Statistics, ShowTilesAndCharts) {
    openLog({"CALL=DL1ABC BAND=2M MODE=FM QSO_DATE=20240315 COUNTRY=Germany",
             "CALL=DL1ABC BAND=20m MODE=CW QSO_DATE=20240316 COUNTRY=Germany",
             "CALL=HB9ABC BAND=2m MODE=FM QSO_DATE=20240315 COUNTRY=Switzerland"});
    show();
    EXPECT_EQ(texts(),
              "3\nQSOs\n2\nRufzeichen\n2\nBänder\n2\nModi\n15.03.2024 – 16.03.2024\nZeitraum\n"
              "QSOs pro Band\nQSOs pro Modus\nVerlauf pro Tag\nTop-Länder");
    EXPECT_EQ(bars("QSOs pro Band"), "20m: 1 QSO | 2m: 2 QSOs");
    EXPECT_EQ(bars("QSOs pro Modus"), "FM: 2 QSOs | CW: 1 QSO");
    EXPECT_EQ(bars("Verlauf pro Tag"), "15.03.2024: 2 QSOs | 16.03.2024: 1 QSO");
    EXPECT_EQ(bars("Top-Länder"), "GERMANY: 2 QSOs | SWITZERLAND: 1 QSO");
    EXPECT_EQ(chart("Top-Länder").data().labelAxis, QStringLiteral("Land"));
    EXPECT_EQ(chart("QSOs pro Band").data().labelAxis, QStringLiteral("Kategorie"));
}

TEST_F(Statistics, LeaveOutWhatTheLogDoesNotTell) {
    show();
    EXPECT_EQ(texts(), "Keine Statistik\nÖffne ein Logbuch mit QSOs, um Auswertungen zu sehen.");
    openLog({"CALL=DL1ABC BAND=2M"});
    QApplication::processEvents();
    EXPECT_EQ(texts(),
              "1\nQSOs\n1\nRufzeichen\n1\nBand\n0\nModi\nQSOs pro Band\nQSOs pro Modus\n"
              "Im Log steht dazu nichts.");
    openLog({"QSO_DATE=20240231"});
    QApplication::processEvents();
    EXPECT_NE(texts().find("Verlauf pro Tag\nKein Datum im Log ist ein Tag des Kalenders."),
              std::string::npos);
}

TEST_F(Statistics, ShowFifteenCountriesAndTheNumbersOfAll) {
    std::vector<std::string> records;
    for (int country = 10; country < 30; ++country) {
        records.push_back("COUNTRY=C" + std::to_string(country));
    }
    openLog(records);
    show();
    const ChartData& countries = chart("Top-Länder").data();
    EXPECT_EQ(countries.barCount(), 15);
    EXPECT_EQ(countries.label(14), QStringLiteral("C24"));
    EXPECT_EQ(countries.numbers().count(QLatin1Char('\n')), 21);
}

TEST_F(Statistics, TakeDatesAsTheyComeAndDaysFromTheCalendar) {
    openLog({"QSO_DATE=00000230", "QSO_DATE=20240229X", "QSO_DATE=20240230", "QSO_DATE=99991231"});
    show();
    EXPECT_NE(texts().find("00000230 – 31.12.9999"), std::string::npos) << texts();
    EXPECT_EQ(bars("Verlauf pro Tag"), "29.02.2024: 1 QSO | 31.12.9999: 1 QSO");
    openLog({"QSO_DATE=20240229"});
    QApplication::processEvents();
    EXPECT_NE(texts().find("\n29.02.2024\nZeitraum"), std::string::npos) << texts();
}

TEST_F(Statistics, FollowTheLogOnceForEachTurnAndOnlyWhereSeen) {
    openLog({"CALL=DL1ABC BAND=2M"});
    show();
    const QSignalSpy computed(view.get(), &StatsView::computed);
    type(0, "BAND", "20m");
    type(0, "MODE", "CW");
    EXPECT_EQ(computed.size(), 0);
    QApplication::processEvents();
    EXPECT_EQ(computed.size(), 1);
    EXPECT_EQ(bars("QSOs pro Band"), "20m: 1 QSO");

    view->hide();
    type(0, "BAND", "40m");
    QApplication::processEvents();
    EXPECT_EQ(computed.size(), 1) << "nobody looks";
    view->show();
    EXPECT_EQ(bars("QSOs pro Band"), "40m: 1 QSO");
}

TEST_F(Statistics, StandInTablesWhereNothingPaintsCharts) {
    openLog({"CALL=DL1ABC BAND=2M", "CALL=DL2ABC BAND=2M"});
    show(nullptr);
    EXPECT_EQ(view->findChild<Chart*>(), nullptr);
    const auto& table = testing::namedChild<QTableView>(*view, "QSOs pro Band, Zahlen");
    EXPECT_TRUE(testing::isShown(table, *view));
    EXPECT_EQ(table.model()->index(0, 0).data().toString(), QStringLiteral("2m"));
    EXPECT_EQ(table.model()->index(0, 1).data().toString(), QStringLiteral("2"));
}

}  // namespace
}  // namespace quillon
