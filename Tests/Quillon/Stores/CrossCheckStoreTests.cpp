// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/CrossCheckStore.h"

#include "Quillon/Support/LogText.h"
#include "Quillon/Support/SignalCounter.h"
#include "Quillon/Support/StandIns.h"
#include "Quillon/Support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <QDir>

#include <string>
#include <utility>
#include <vector>

namespace quillon {
namespace {

using testing::adi;

class CrossCheckStoreTest : public ::testing::Test {
  protected:
    /// Writes the log of a station that worked another.
    QString write(const QString& name, const std::string& owner, const std::string& worked) const {
        return folder.write(name, log(owner, worked));
    }
    static std::string log(const std::string& owner, const std::string& worked) {
        return adi({"STATION_CALLSIGN=" + owner + " CALL=" + worked +
                    " BAND=20m MODE=CW QSO_DATE=20260102 TIME_ON=1200"});
    }
    /// Writes two logs that agree, and one that knows none of them.
    void writeContest() const {
        write("b.adi", "DL10B", "DL2A");
        write("a.adi", "dl2a", "DL10B");
        write("c.adi", "DL3C", "HB9X");
    }
    void addFolder() { store.add({folder.path(".")}, currentURL); }

    std::string message() const {
        return store.loadMessage().value_or(QStringLiteral("(none)")).toStdString();
    }
    std::string exportMessage() const {
        return store.exportMessage().value_or(QStringLiteral("(none)")).toStdString();
    }
    /// Names and owners of the logs that take part.
    std::string logs() const {
        std::string result;
        for (const auto& log : store.logs(current, currentURL)) {
            result += (result.empty() ? "" : " ") + log.name + ":" + log.owner;
        }
        return result;
    }
    tallyrig::UUID id(std::size_t index) const { return store.entries().at(index).id; }
    std::shared_ptr<const CrossCheckEvaluation> evaluate() const {
        return store.evaluate(current, currentURL, ContestChoice());
    }

    testing::TemporaryFolder folder;
    testing::ScriptedPanels panels;
    testing::NotingFileManager files;
    CrossCheckStore store{panels, files};
    testing::SignalCounter told{store};
    tallyrig::ADIFDocument current;
    std::optional<QString> currentURL;
};

using AddingLogs = CrossCheckStoreTest;
using LogsOfACheck = CrossCheckStoreTest;
using Evaluating = CrossCheckStoreTest;
using Exporting = CrossCheckStoreTest;

TEST(CrossCheckArguments, NameTheFolder) {
    const std::pair<QStringList, QString> cases[] = {{{"a.adi", "--crosscheck"}, ""},
                                                     {{"--crosscheck", ""}, ""},
                                                     {{"logs"}, ""},
                                                     {{"a.adi", "--crosscheck", "logs", "b.adi"}, "logs"}};
    for (const auto& [arguments, folder] : cases) {
        EXPECT_EQ(CrossCheckStore::commandLineFolder(arguments).value_or(""), folder)
            << arguments.join(' ').toStdString();
    }
}

TEST_F(AddingLogs, SortsThemByOwnerAndPassesOverThoseThatAreThere) {
    writeContest();
    addFolder();
    EXPECT_EQ(told.sent(), "entries");
    EXPECT_EQ(logs(), "a.adi:DL2A c.adi:DL3C b.adi:DL10B");
    addFolder();
    store.add({folder.path("../") + QFileInfo(folder.path(".")).dir().dirName() + "/./a.adi"}, {});
    EXPECT_EQ(message(), "(none)");
    EXPECT_EQ(told.sent(), "");
    store.removeAll();
    // One that is named twice at once is read twice.
    store.add({folder.path("a.adi"), folder.path("a.adi")}, {});
    EXPECT_EQ(logs(), "a.adi:DL2A a.adi:DL2A");
}

TEST_F(AddingLogs, TellsOfFilesWithoutQSOs) {
    writeContest();
    for (const char* name : {"e1.txt", "e2.txt", "e3.txt", "e4\n.log", "e5.log", "e6.log"}) {
        folder.write(name, name);
    }
    store.add({folder.path("missing.adi"), folder.path(".")}, {});
    EXPECT_EQ(
        message(),
        "3 Log(s) geladen, 7 übersprungen (keine QSOs): missing.adi, e1.txt, e2.txt, e3.txt, e4⏎.log …");
}

TEST_F(AddingLogs, PassesOverTheOpenLogWhileThatTakesPart) {
    writeContest();
    folder.write("empty.log", "");
    currentURL = folder.path("a.adi");
    addFolder();
    EXPECT_EQ(message(),
              "a.adi ist bereits das aktuelle Log.\n"
              "2 Log(s) geladen, 1 übersprungen (keine QSOs): empty.log");
    store.setIncludeCurrentLog(false);
    addFolder();
    EXPECT_EQ(store.entries().size(), 3U);
    store.setIncludeCurrentLog(true);
    EXPECT_EQ(logs(), "a.adi:DL2A c.adi:DL3C b.adi:DL10B") << "it has no QSOs and does not take part";
    current = tallyrig::ADIFParser::parse(log("DL2A", "DL10B"));
    EXPECT_EQ(logs(), "a.adi:DL2A c.adi:DL3C b.adi:DL10B") << "and now it does, in the place of the entry";
    EXPECT_EQ(store.logs(current, currentURL).front().id, CrossCheckStore::currentLogID());
}

TEST_F(AddingLogs, AsksForThem) {
    writeContest();
    store.addLogsWithPanel({});
    EXPECT_EQ(told.sent(), "");
    panels.answers = QStringList{folder.path("b.adi"), folder.path("c.adi")};
    store.addLogsWithPanel({});
    EXPECT_EQ(logs(), "c.adi:DL3C b.adi:DL10B");
    EXPECT_EQ(panels.messages.value(1).toStdString(),
              "Contest-Logs (ADI, ADX, Cabrillo, EDI) oder einen Ordner wählen");
}

TEST_F(AddingLogs, ReadBesideEachOtherAreTakenOnce) {
    writeContest();
    const LogsToAdd wanted = store.logsToAdd({folder.path(".")}, {});
    tallyrig::LogWork work;
    const auto first = readLogs(wanted, work);
    const auto second = readLogs(wanted, work);
    store.take(first.value());
    store.take(second.value());
    EXPECT_EQ(logs(), "a.adi:DL2A c.adi:DL3C b.adi:DL10B");
}

TEST_F(LogsOfACheck, HaveTheOwnersThatWereTyped) {
    writeContest();
    addFolder();
    current = tallyrig::ADIFParser::parse(log("DL0CUR", "DL2A"));
    told.sent();
    store.setOwnerOverride(id(0), "oe1x/p");
    store.setOwnerOverride(id(0), "oe1x/p");
    store.setCurrentOwnerOverride("dl0own");
    EXPECT_EQ(told.sent(), "currentOwnerOverride entries");
    EXPECT_EQ(logs(), "Aktuelles Log:DL0OWN a.adi:OE1X/P c.adi:DL3C b.adi:DL10B");
    store.setCurrentOwnerOverride("");
    EXPECT_EQ(logs(), "Aktuelles Log:DL0CUR a.adi:OE1X/P c.adi:DL3C b.adi:DL10B");
}

TEST_F(LogsOfACheck, LeaveTheSelectionWithTheEntry) {
    writeContest();
    addFolder();
    store.setSelectedLogID(id(1));
    told.sent();
    store.remove(id(0));
    store.remove(tallyrig::UUID::fresh());
    EXPECT_EQ(told.sent(), "entries");
    store.remove(id(0));
    EXPECT_EQ(told.sent(), "entries selectedLogID");
    store.setSelectedLogID(CrossCheckStore::currentLogID());
    store.removeAll();
    store.removeAll();
    EXPECT_EQ(told.sent(), "entries selectedLogID");
    EXPECT_EQ(store.selectedLogID(), CrossCheckStore::currentLogID());
}

TEST_F(Evaluating, FollowsTheSettings) {
    store.setToleranceMinutes(10);
    store.setCompareMode(false);
    store.setCheckRST(true);
    EXPECT_EQ(store.options(), (tallyrig::CrossCheckOptions{10, 30, false, true, true, 2}));
    store.setToleranceMinutes(45);
    EXPECT_EQ(store.options().extendedToleranceMinutes, 45);
    store.setNilPenaltyFactor(3);
    store.setBustedPenaltyFactor(2);
    EXPECT_EQ(store.penalties(), (tallyrig::CrossCheckPenalties{true, 3, 2}));
    EXPECT_EQ(told.sent(), "bustedPenaltyFactor checkRST compareMode nilPenaltyFactor toleranceMinutes2");
}

TEST_F(Evaluating, ChecksScoresAndNamesTheContest) {
    writeContest();
    addFolder();
    const auto result = evaluate();
    ASSERT_EQ(result->report.summaries().size(), 3U);
    const auto& confirmed = result->report.findings(id(0))[0];
    const auto& unique = result->report.findings(id(1))[0];
    using Status = tallyrig::CrossCheckStatus;
    EXPECT_EQ(confirmed.status, Status::confirmed);
    EXPECT_EQ(unique.status, Status::unique);
    EXPECT_EQ(result->scores.at(id(0)).station.dxcc, "230") << "that of the owner's call";
    EXPECT_EQ(result->contestName, "Helvetia");
    store.setScoringEnabled(false);
    EXPECT_TRUE(evaluate()->scores.empty());

    EXPECT_TRUE(store.findingFilter().shows(unique));
    EXPECT_FALSE(store.findingFilter().shows(confirmed));
    auto noted = confirmed;
    noted.notes.emplace_back("Zeit nicht prüfbar");
    EXPECT_TRUE(store.findingFilter().shows(noted));
    EXPECT_TRUE(FindingFilter::of(Status::unique).shows(unique));
    EXPECT_FALSE(FindingFilter::of(Status::unique).shows(noted));
}

TEST_F(Evaluating, KnowsWhetherAResultIsOutOfDate) {
    writeContest();
    addFolder();
    store.take(evaluate());
    const auto isUpToDate = [&] {
        return store.evaluation()->input.isSameAs(store.input(current, currentURL, ContestChoice()));
    };
    EXPECT_TRUE(isUpToDate());
    store.setOwnerOverride(id(2), "DL4X");
    EXPECT_FALSE(isUpToDate());
    store.setOwnerOverride(id(2), "");
    EXPECT_TRUE(isUpToDate());
    current = tallyrig::ADIFParser::parse(log("DL0CUR", "DL2A"));
    EXPECT_FALSE(isUpToDate());
}

TEST_F(Evaluating, CanBeWatchedAndCancelled) {
    writeContest();
    addFolder();
    const CrossCheckInput input = store.input(current, currentURL, ContestChoice());
    EvaluationWork work;
    EXPECT_TRUE(evaluated(input, work));
    EXPECT_DOUBLE_EQ(work.progress(), 1);
    work.cancel();
    EXPECT_FALSE(evaluated(input, work));
}

TEST_F(Exporting, TellsWhereTheReportsAre) {
    writeContest();
    addFolder();
    const auto result = evaluate();
    store.setToleranceMinutes(7);  // Is not what the evaluation was made with.
    store.setEvaluator(" HB9EVA\t");
    told.sent();
    store.exportReportsWithPanel(result, QDate(2026, 1, 9));
    EXPECT_EQ(told.sent(), "") << "the user cancelled";
    EXPECT_EQ(panels.messages.value(0).toStdString(),
              "Ordner für die Prüfberichte wählen (es wird ein Unterordner angelegt)|Exportieren");
    panels.answers = QStringList{folder.path(".")};
    store.exportReportsWithPanel(result, QDate(2026, 1, 9));
    EXPECT_EQ(exportMessage(), "7 Dateien in «Cross-Check Helvetia 2026-01-09» geschrieben.");
    EXPECT_EQ(QDir(files.shown.value(0)).dirName(), "Cross-Check Helvetia 2026-01-09");
    EXPECT_FALSE(store.hasExportFailed());
    const std::string report = folder.read("Cross-Check Helvetia 2026-01-09/DL2A.txt");
    EXPECT_NE(report.find("2026-01-09 · von HB9EVA · 3 Logs, Toleranz ±5 min · Rang"), std::string::npos)
        << report;
}

TEST_F(Exporting, TellsWhyItFailed) {
    panels.answers = QStringList{folder.path("missing")};
    store.exportReportsWithPanel(evaluate(), QDate(2026, 1, 9));
    EXPECT_EQ(exportMessage(), "Export fehlgeschlagen: Der Ordner existiert nicht.");
    EXPECT_TRUE(store.hasExportFailed() && files.shown.isEmpty());
    store.clearExportMessage();
    EXPECT_EQ(exportMessage(), "(none)");
}

}  // namespace
}  // namespace quillon
