// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Support/LogStoreFixture.h"

#include <QDir>

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
    EXPECT_EQ(told.sent(), "isDirty savedDocument windowTitle");
    const std::string text = folder.read("log.adi");
    EXPECT_NE(text.find("<ADIF_VER:5>3.1.4 <PROGRAMID:7>Quillon"), std::string::npos) << text;
    EXPECT_TRUE(text.ends_with("<CALL:1>C <BAND:3>20m <EOR>\n<CALL:1>A <EOR>\n")) << text;
}

TEST_F(SavingLogs, AsksWhereForALogWithoutFile) {
    store.addRecord();
    told.sent();
    panels.answers = {folder.path("x.edi"), folder.path("y.adi")};
    store.save();
    EXPECT_EQ(told.sent(), "fileURL isDirty savedDocument windowTitle");
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
