// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Support/LogStoreFixture.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>

#include <optional>
#include <tuple>

namespace quillon {
namespace {

using testing::adi;
using testing::LogStoreTest;

using OpeningLogs = LogStoreTest;
using CommandLine = LogStoreTest;
using SavingLogs = LogStoreTest;
using Failures = LogStoreTest;
using OtherFormats = LogStoreTest;

TEST_F(OpeningLogs, EndsWhatBelongedToTheOldOneOnly) {
    openLog({"CALL=A", "CALL=B"});
    store.setSearchText("b");
    store.toggleSort("CALL");
    store.setWidth(333, "OLD");
    store.setMode(AppMode::stats);
    type(0, "CALL", "X");
    store.runCheck();
    select({0});
    const QString path = folder.write("Größe.adi", adi({"MODE=CW", "X=1"}));
    store.open(path);
    EXPECT_EQ(told.sent(),
              "checkResults columnWidths columns displayedRecords document fileURL history isDirty "
              "savedDocument selection "
              "showCheckResults windowTitle");
    EXPECT_EQ(title(), "Größe.adi");
    EXPECT_EQ(columns(), "MODE X");
    EXPECT_EQ(store.width("OLD"), 333);
    store.open(path);  // The same values, but other ids.
    EXPECT_EQ(told.sent(), "displayedRecords document savedDocument");
    store.newLog();
    EXPECT_EQ(told.sent(), "columns displayedRecords document fileURL savedDocument windowTitle");
    EXPECT_EQ(title(), "Unbenanntes Logbuch");
    EXPECT_TRUE(store.columnExists("CALL"));
    store.newLog();
    EXPECT_EQ(told.sent(), "");
}

TEST_F(OpeningLogs, KeepsWhatTheReaderSaidOfTheFileForAsLongAsTheLog) {
    store.open(folder.write("cut.adi", "<EOH><CALL:1>AB<EOR>"));
    EXPECT_NE(told.sent().find("readingReport"), std::string::npos);
    type(0, "CALL", "AB");
    store.open(folder.path("missing.adi"));
    store.save();
    EXPECT_EQ(told.sent().find("readingReport"), std::string::npos);
    ASSERT_EQ(store.readingReport().notes().size(), 1U);
    EXPECT_EQ(store.readingReport().notes()[0].kind, tallyrig::ReadingKind::lengthTooShort);
    store.newLog();
    EXPECT_NE(told.sent().find("readingReport"), std::string::npos);
    EXPECT_TRUE(store.readingReport().isEmpty());
}

TEST_F(CommandLine, OpensTheFirstPathThatIsThereAndTellsOfTheOthers) {
    const QString a = folder.write("a.adi", adi({"CALL=A"}));
    const QString b = folder.write("b.adi", adi({"CALL=B"}));
    const QString none = folder.path(QString::fromUtf8("n\xFCnf.adi"));
    const QString cross = "--crosscheck";
    const std::string only = "Es ist immer nur ein Log offen. Nicht geöffnet:\n";
    const std::string failed = "Datei konnte nicht geöffnet werden:\n";
    const std::tuple<QStringList, std::string, std::string> cases[] = {
        {{cross, a, b}, "B", "(none)"},
        {{a, cross, b}, "A", "(none)"},
        {{"-x", "", b}, "B", "(none)"},
        {{cross, cross, a}, "", "(none)"},
        {{"missing", b, a}, "B", only + "missing\n" + a.toStdString()},
        {{"-x", "missing"}, "", failed + "„missing“: Die Datei existiert nicht."},
        {{"--", "-x"}, "", failed + "„-x“: Die Datei existiert nicht."},
        {{none}, "", failed + "„n\uFFFDnf.adi“: Der Name ist nicht in UTF-8 geschrieben."},
    };
    for (const auto& [arguments, opened, message] : cases) {
        LogStore other(settings, panels, measurer, fileManager);
        other.openFromCommandLineIfNeeded(arguments);
        const auto& records = other.document().records();
        EXPECT_EQ(records.empty() ? "" : records[0].valueOrEmpty("CALL"), opened) << message;
        EXPECT_EQ(other.errorMessage().value_or("(none)").toStdString(), message);
    }
    store.openFromCommandLineIfNeeded({a});
    store.openFromCommandLineIfNeeded({b});
    EXPECT_EQ(shown(), "A");
}

TEST_F(CommandLine, TakesAPathAsTheSystemDoes) {
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(folder.path(".")));
    ASSERT_TRUE(QFile::rename(folder.write("c.adi", adi({"CALL=A"})), folder.path("./:c.adi")));
    store.openFromCommandLineIfNeeded({"missing", ":c.adi"});
    EXPECT_EQ(store.fileURL(), QDir::currentPath() + "/:c.adi");
    QDir::setCurrent(before);
    EXPECT_EQ(shown(), "A");
}

TEST_F(SavingLogs, WritesTheWholeLogWhateverTheTableShows) {
    settings.setValue("adifVersion", "3.1.4");
    openLog({"CALL=B BAND=20m", "CALL=A"});
    store.toggleSort("CALL");
    store.setSearchText("20m");
    type(0, "CALL", "C");
    told.sent();
    store.save();
    EXPECT_EQ(told.sent(), "isDirty savedDocument windowTitle written");
    const std::string text = folder.read("log.adi");
    EXPECT_NE(text.find("<ADIF_VER:5>3.1.4 <PROGRAMID:7>Quillon"), std::string::npos) << text;
    EXPECT_TRUE(text.ends_with("<CALL:1>C <BAND:3>20m <EOR>\n<CALL:1>A <EOR>\n")) << text;
}

TEST_F(SavingLogs, AsksWhereForALogWithoutFile) {
    store.addRecord();
    told.sent();
    panels.answers = {folder.path("x.edi"), folder.path("y.adi")};
    store.save();
    EXPECT_EQ(told.sent(), "fileURL isDirty savedDocument windowTitle written");
    store.saveWithPanel();
    EXPECT_EQ(title(), "y.adi");
    EXPECT_EQ(panels.proposedNames.join(' '), "Logbuch.adi x.edi");
    EXPECT_EQ(folder.names(), "x.edi y.adi");
    EXPECT_TRUE(store.canUndo());
}

TEST_F(Failures, ChangeNothingButTheMessage) {
    openLog({"CALL=A"});
    type(0, "CALL", "B");
    told.sent();
    const std::string opening = "Datei konnte nicht geöffnet werden:\n";
    store.open(folder.path("missing.adi"));
    EXPECT_EQ(error(), opening + "„missing.adi“: Die Datei existiert nicht.");
    store.open(QDir::rootPath());
    EXPECT_EQ(error(), opening + "„/“: Das ist ein Ordner und keine Datei.");
    const QString nowhere = folder.path("missing/log.adi");
    panels.answers = {nowhere, nowhere, nowhere};
    store.saveWithPanel();
    EXPECT_EQ(error(),
              "Speichern fehlgeschlagen:\n„log.adi“: Der Ordner existiert nicht. „Speichern unter…“ wählt "
              "einen anderen Ort.");
    store.exportCabrillo({});
    EXPECT_TRUE(error().starts_with("Cabrillo-Export fehlgeschlagen:\n")) << error();
    store.exportEDI({});
    EXPECT_TRUE(error().starts_with("EDI-Export fehlgeschlagen:\n")) << error();
    // To cancel is none.
    store.openWithPanel();
    store.saveWithPanel();
    store.exportEDI({});
    EXPECT_EQ(told.sent(), "errorMessage5");
    EXPECT_EQ(title(), "log.adi — bearbeitet");
}

TEST_F(SavingLogs, AsksBeforeSomethingIsLost) {
    store.open(folder.write("a.adi", "<EOH><CALL:1>A<NO XML:1>1<EOR>"));
    store.save();
    EXPECT_TRUE(panels.lossQuestions.empty());
    panels.answers = {folder.path("a.adx")};
    store.saveWithPanel();
    EXPECT_EQ(folder.names(), "a.adi") << "cancelled";
    EXPECT_EQ(title(), "a.adi");
    ASSERT_EQ(panels.lossQuestions.size(), 1U);
    EXPECT_EQ(panels.lossQuestions[0].text,
              "„a.adx“ wird als ADX geschrieben. Nicht alles käme beim Lesen wieder: 1 Angabe in 1 QSO; das "
              "letzte QSO würde gar nicht gelesen.");
    EXPECT_EQ(panels.lossQuestions[0].losses.join('|'),
              "QSO 1 mit „A“: Das Feld „NO XML“ mit dem Wert „1“ ginge verloren: Das Format kann den Namen "
              "nicht schreiben.");
    EXPECT_EQ(panels.lossQuestions[0].otherFormat, "ADIF");
    panels.lossAnswer = LossAnswer::otherFormat;
    panels.answers = {folder.path("a.adx"), folder.path("b.adi")};
    store.saveWithPanel();
    EXPECT_EQ(folder.names(), "a.adi b.adi");
    EXPECT_EQ(title(), "b.adi");
    panels.lossAnswer = LossAnswer::saveAnyway;
    panels.answers = {folder.path("a.adx")};
    store.saveAsADX();
    EXPECT_NE(folder.read("a.adx").find("NO XML"), std::string::npos);
    EXPECT_EQ(title(), "a.adx");
    EXPECT_TRUE(store.hasUnsavedChanges()) << "the file does not have them";
    EXPECT_TRUE(store.savedDocument().records().empty());
}

TEST_F(SavingLogs, LeavesAFileAloneThatAnotherProgramHasChanged) {
    QSignalSpy changed(&store, &LogStore::changedOnDisk);
    openLog({"CALL=A"});
    folder.write("log.adi", "Other header<EOH><CALL:1>A<EOR>");
    store.save();
    EXPECT_EQ(changed.size(), 0) << "the same QSOs";
    const std::string theirs = adi({"CALL=THEIRS"});
    folder.write("log.adi", theirs);
    type(0, "CALL", "B");
    store.save();
    EXPECT_EQ(changed.size(), 1);
    EXPECT_EQ(folder.read("log.adi"), theirs);
    EXPECT_EQ(title(), "log.adi — bearbeitet");
    store.saveReplacing();
    EXPECT_NE(folder.read("log.adi").find("<CALL:1>B"), std::string::npos);
    // Between the look at the file and its replacement.
    store.beforeReplacing([&](const QString&) { folder.write("log.adi", theirs); });
    store.save();
    EXPECT_EQ(changed.size(), 2);
    EXPECT_EQ(folder.read("log.adi"), theirs);
    EXPECT_EQ(error(), "(none)");
    EXPECT_EQ(folder.names(), "log.adi");
    QFile::remove(folder.path("log.adi"));
    store.beforeReplacing({});
    store.save();
    EXPECT_EQ(changed.size(), 2) << "a file that is gone comes again";
    EXPECT_EQ(folder.names(), "log.adi");
}

TEST_F(SavingLogs, KnowsWhatTheFirstOneTakesFromTheFile) {
    using enum SavingConcern;
    const std::string contest = "START-OF-LOG: 3.0\nQSO: 14074 CW 2024-01-15 1234 DL1ABC 599 1 K1XYZ 599 2\n";
    const std::tuple<QString, std::string, std::optional<SavingConcern>> cases[] = {
        {"a.adi", adi({"CALL=A"}), std::nullopt},
        {"a.adx", adi({"CALL=A"}), otherFormat},
        {"a.log", contest, otherFormat},
        {"a.adx", "<ADX><RECORDS><RECORD><CALL>A</CALL></RECORD></RECORDS></ADX>", std::nullopt},
        {"a.xml", "<ADX><RECORDS><RECORD><CALL>A</CALL></RECORD></RECORDS></ADX>", otherFormat},
        {"a.adi", "<EOH><CALL:1>AB<EOR>", notWhole},
        {"a.cbr", contest + "QSO: 14074 CW\n", notWhole},
        {"a.pdf", "%PDF-1.4", noQSOs},
        {"a.adi", " \n", std::nullopt},
    };
    for (const auto& [name, text, concern] : cases) {
        store.open(folder.write(name, text));
        EXPECT_EQ(store.savingConcern(), concern) << text;
        store.save();
        EXPECT_EQ(store.savingConcern(), std::nullopt) << text;
    }
    store.open(folder.write("a.log", contest));
    store.newLog();
    EXPECT_EQ(store.savingConcern(), std::nullopt);
}

TEST_F(OtherFormats, AreReadByTheirContentAndSavedByTheExtensionAlone) {
    settings.setValue("writeHeaderOnSave", false);
    const QString contest = folder.write(
        "contest.adi", "START-OF-LOG: 3.0\nQSO: 14074 CW 2024-01-15 1234 DL1ABC 599 1 K1XYZ 599 2\n");
    panels.answers = {contest, folder.path("x.ADX"), folder.path("x.cbr"), folder.path("y.adx")};
    store.openWithPanel();
    EXPECT_EQ(shown(), "K1XYZ");
    store.saveWithPanel();
    EXPECT_TRUE(folder.read("x.ADX").starts_with("<?xml"));
    EXPECT_EQ(folder.read("x.ADX").find("HEADER"), std::string::npos);
    store.saveWithPanel();
    EXPECT_TRUE(folder.read("x.cbr").starts_with("<FREQ")) << "ADI text";
    store.saveAsADX();
    EXPECT_EQ(title() + " " + panels.proposedNames.last().toStdString(), "y.adx x.adx");
    EXPECT_NE(told.sent().find("exported"), std::string::npos);
    store.saveAsADX();
    EXPECT_EQ(told.sent(), "") << "cancelled";
}

TEST_F(OtherFormats, ExportsLeaveTheLogAndItsFileAlone) {
    openLog({"CALL=DL1ABC QSO_DATE=20240115 TIME_ON=123456 GRIDSQUARE=JO62"});
    type(0, "CALL", "K1XYZ");
    told.sent();
    panels.answers = {folder.path("a.cbr"), folder.path("a.edi")};
    store.exportCabrillo({});
    EXPECT_NE(folder.read("a.cbr").find(" K1XYZ "), std::string::npos);
    store.exportEDI({});
    EXPECT_NE(folder.read("a.edi").find("240115;1234;K1XYZ;"), std::string::npos);
    EXPECT_EQ(panels.proposedNames.join(' '), "log.cbr log.edi");
    EXPECT_EQ(told.sent(), "exported2");
}

}  // namespace
}  // namespace quillon
