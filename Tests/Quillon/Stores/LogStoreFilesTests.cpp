#include "Quillon/Support/LogStoreFixture.h"

#include <QDir>

#include <filesystem>
#include <tuple>

namespace quillon {
namespace {

using testing::adi;
using testing::LogStoreTest;

using OpeningLogs = LogStoreTest;
using SavingLogs = LogStoreTest;
using CommandLine = LogStoreTest;
using NewLog = LogStoreTest;

constexpr const char* defaultColumns =
    "CALL QSO_DATE TIME_ON BAND MODE FREQ RST_SENT RST_RCVD GRIDSQUARE NAME";

TEST_F(OpeningLogs, ShowsTheLogAsItIs) {
    EXPECT_EQ(columns(), defaultColumns);
    EXPECT_EQ(title(), "Unbenanntes Logbuch");
    const QString path = folder.write(QString::fromUtf8("Größe.adi"), adi({"CALL=DL1ABC BAND=20m", "X=1"}));
    store.open(path);
    EXPECT_EQ(told.sent(), "columnWidths columns displayedRecords document fileURL windowTitle");
    EXPECT_EQ(title(), "Größe.adi");
    EXPECT_EQ(store.fileURL(), path);
    EXPECT_EQ(columns(), "CALL BAND X");
    EXPECT_FALSE(store.canUndo());
    store.open(path);  // The same values, but other ids.
    EXPECT_EQ(told.sent(), "displayedRecords document");
}

TEST_F(OpeningLogs, EndsWhatBelongedToTheOldOneOnly) {
    openLog({"CALL=A", "CALL=B"});
    store.setSearchText("b");
    store.toggleSort("CALL");
    store.setWidth(333, "OLD");
    store.setMode(AppMode::stats);
    type(0, "CALL", "X");
    store.runCheck();
    select({0});
    store.open(folder.write("next.adi", adi({"MODE=CW"})));
    EXPECT_EQ(told.sent(),
              "checkResults columnWidths columns displayedRecords document fileURL history isDirty selection "
              "showCheckResults windowTitle");
    EXPECT_FALSE(store.isDirty());
    EXPECT_EQ(store.searchText(), "b");
    EXPECT_EQ(store.sortColumn(), "CALL");
    EXPECT_EQ(store.width("OLD"), 333);
    EXPECT_EQ(store.mode(), AppMode::stats);
}

TEST_F(OpeningLogs, KeepsTheOldOneWhereTheNewCannotBeRead) {
    openLog({"CALL=A"});
    type(0, "CALL", "B");
    told.sent();
    store.open(folder.path("missing.adi"));
    EXPECT_EQ(error(), "Datei konnte nicht geöffnet werden:\n„missing.adi“: Die Datei existiert nicht.");
    EXPECT_EQ(told.sent(), "errorMessage");
    store.open(QDir::rootPath());
    EXPECT_EQ(error(), "Datei konnte nicht geöffnet werden:\n„/“: Das ist ein Ordner und keine Datei.");
    EXPECT_EQ(title(), "log.adi — bearbeitet");
    EXPECT_EQ(shown(), "B");
    EXPECT_TRUE(store.canUndo());
    store.setErrorMessage(std::nullopt);
    EXPECT_EQ(told.sent(), "errorMessage2");
}

TEST_F(OpeningLogs, AsksInAPanelForAnyLogFile) {
    panels.answers = {folder.write("contest.log", adi({"CALL=A"}))};
    store.openWithPanel();
    EXPECT_EQ(shown(), "A");
    QStringList extensions;
    for (const FileType& type : panels.offeredTypes) {
        extensions += type.extensions;
    }
    EXPECT_EQ(extensions.join(' '), "adi adif adx edi cbr cabrillo log txt");
    told.sent();
    store.openWithPanel();  // Cancelled.
    EXPECT_EQ(told.sent(), "");
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
        {{none}, "", failed + "„n\uFFFDnf.adi“: Der Name ist nicht in UTF-8 geschrieben."},
    };
    for (const auto& [arguments, opened, message] : cases) {
        LogStore other(settings, panels, measurer);
        other.openFromCommandLineIfNeeded(arguments);
        const auto& records = other.document().records();
        EXPECT_EQ(records.empty() ? "" : records[0].valueOrEmpty("CALL"), opened) << message;
        EXPECT_EQ(other.errorMessage().value_or("(none)").toStdString(), message);
    }
    store.openFromCommandLineIfNeeded({a});
    store.openFromCommandLineIfNeeded({b});
    EXPECT_EQ(shown(), "A");
}

TEST_F(CommandLine, LeavesItToTheSystemWhereAPathLeads) {
    const std::filesystem::path top = folder.path(".").toStdString();
    std::filesystem::create_directories(top / "far/logs");
    std::filesystem::create_directory_symlink("far/logs", top / "link");
    folder.write("r.adi", adi({"CALL=NEAR"}));
    folder.write("far/r.adi", adi({"CALL=FAR"}));
    std::filesystem::copy_file(folder.write("c.adi", adi({"CALL=COLON"})).toStdString(), top / ":r.adi");
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(folder.path(".")));
    for (const auto& [argument, call] : {std::pair("link/../r.adi", "FAR"), std::pair(":r.adi", "COLON")}) {
        LogStore other(settings, panels, measurer);
        other.openFromCommandLineIfNeeded({argument});
        ASSERT_EQ(other.document().records().size(), 1U);
        EXPECT_EQ(other.document().records()[0]["CALL"], call);
        other.save();
    }
    QDir::setCurrent(before);
    EXPECT_NE(folder.read("far/r.adi").find("PROGRAMID"), std::string::npos);
    EXPECT_EQ(folder.read("r.adi").find("PROGRAMID"), std::string::npos);
}

TEST_F(SavingLogs, WritesTheWholeLogWhateverTheTableShows) {
    openLog({"CALL=B BAND=20m", "CALL=A"});
    store.toggleSort("CALL");
    store.setSearchText("20m");
    type(0, "CALL", "C");
    told.sent();
    store.save();
    EXPECT_EQ(told.sent(), "isDirty windowTitle");
    const std::string text = folder.read("log.adi");
    EXPECT_NE(text.find("<PROGRAMID:7>Quillon"), std::string::npos) << text;
    EXPECT_EQ(text.find("<CALL:1>C"), text.find("<BAND:3>20m") - 10) << text;
    EXPECT_LT(text.find("<CALL:1>C"), text.find("<CALL:1>A")) << text;
    store.open(folder.path("log.adi"));
    EXPECT_EQ(cell(0, "CALL"), "C");
    store.save();
    EXPECT_EQ(folder.names(), "log.adi");
}

TEST_F(SavingLogs, AsksWhereForALogWithoutFile) {
    store.addRecord();
    told.sent();
    store.save();  // Cancelled.
    EXPECT_EQ(told.sent(), "");
    EXPECT_EQ(title(), "Unbenanntes Logbuch — bearbeitet");
    panels.answers = {folder.path("x.edi"), folder.path("y.adi")};
    store.save();
    EXPECT_EQ(told.sent(), "fileURL isDirty windowTitle");
    store.saveWithPanel();
    EXPECT_EQ(title(), "y.adi");
    EXPECT_EQ(panels.proposedNames.join(' '), "Logbuch.adi Logbuch.adi x.edi");
    EXPECT_EQ(folder.names(), "x.edi y.adi");
    EXPECT_TRUE(store.canUndo());
}

TEST_F(SavingLogs, FollowsTheSettings) {
    const struct {
        QVariant version;
        QVariant header;
        const char* expected;
    } cases[] = {
        {{}, {}, "<ADIF_VER:5>3.1.7"},          {" \t", true, "<ADIF_VER:5>3.1.7"},
        {"3.1.4", "nein", "<ADIF_VER:5>3.1.4"}, {7, {}, "<ADIF_VER:5>3.1.7"},
        {" 3 ", {}, "<ADIF_VER:3> 3 "},         {"3.1.4", false, nullptr},
    };
    openLog({"CALL=A"});
    for (const auto& [version, header, expected] : cases) {
        settings.setValue("adifVersion", version);
        settings.setValue("writeHeaderOnSave", header);
        store.save();
        const std::string text = folder.read("log.adi");
        EXPECT_EQ(text.find(expected != nullptr ? expected : "<EOH>") == std::string::npos,
                  expected == nullptr)
            << text;
    }
}

TEST_F(SavingLogs, ChangesNothingWhereItFails) {
    openLog({"CALL=A"});
    type(0, "CALL", "B");
    told.sent();
    panels.answers = {folder.path("missing/log.adi")};
    store.saveWithPanel();
    EXPECT_EQ(
        error(),
        "Speichern fehlgeschlagen:\n„log.adi“: Der Ordner existiert nicht. „Speichern unter…“ wählt einen "
        "anderen Ort.");
    EXPECT_EQ(told.sent(), "errorMessage");
    EXPECT_EQ(title(), "log.adi — bearbeitet");
    EXPECT_EQ(folder.names(), "log.adi");
}

TEST_F(NewLog, DropsTheLogAndKeepsHowItIsShown) {
    openLog({"X=1"});
    store.toggleSort("X");
    store.setSearchText("1");
    told.sent();
    store.newLog();
    EXPECT_EQ(told.sent(), "columns displayedRecords document fileURL windowTitle");
    EXPECT_EQ(columns(), defaultColumns);
    EXPECT_EQ(store.sortColumn(), "X");
    EXPECT_EQ(store.searchText(), "1");
    store.newLog();
    EXPECT_EQ(told.sent(), "");
}

}  // namespace
}  // namespace quillon
