// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/CompareStore.h"

#include "Quillon/Stores/ValidationSettings.h"
#include "Quillon/Support/LogText.h"
#include "Quillon/Support/SignalCounter.h"
#include "Quillon/Support/StandIns.h"
#include "Quillon/Support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include <string>
#include <vector>

namespace quillon {
namespace {

using testing::adi;

class ComparingLogs : public ::testing::Test {
  protected:
    QString write(const QString& name, const std::vector<std::string>& records) {
        return folder.write(name, adi(records));
    }
    void loadRight(const QString& path) {
        panels.answers = {path};
        store.loadRight();
    }
    void loadLeft(const QString& path) {
        panels.answers = {path};
        store.loadLeftFile();
    }
    TextBinding rightCell(std::size_t index, const std::string& column) {
        return store.rightBinding(store.rightDoc().records()[index].id(), column);
    }

    testing::TemporaryFolder folder;
    testing::MemorySettings settings;
    testing::ScriptedPanels panels;
    CompareStore store{settings, panels};
    testing::SignalCounter told{store};
};

TEST_F(ComparingLogs, SetTheOpenLogAgainstNothingAtFirst) {
    const tallyrig::ADIFDocument log({}, {}, testing::recordsOf({"CALL=A", "CALL=B"}));
    EXPECT_EQ(store.comparison(log).counts().onlyLeft, 2U);
    EXPECT_EQ(store.rightName(), QStringLiteral("—"));
    EXPECT_FALSE(store.hasRightFile());
    loadLeft(write("left.adi", {"CALL=C"}));
    loadRight(write("right.adi", {"CALL=C"}));
    EXPECT_EQ(store.comparison(log).counts().equal, 1U) << "a file takes the place of the open log";
    store.setLeftFile(std::nullopt);
    EXPECT_EQ(store.comparison(log).counts().onlyLeft, 2U);
}

TEST_F(ComparingLogs, AskBeforeASideIsSavedThatWouldNotComeBack) {
    const tallyrig::ADIFField field("A:B", "1");
    const tallyrig::ADIFDocument log("", {},
                                     tallyrig::ADIFRecordList({tallyrig::ADIFRecord(std::vector{field})}));
    store.setRight({log, "a.adi", folder.path("a.adi"), true});
    store.saveRight();
    EXPECT_EQ(folder.names(), "");
    EXPECT_TRUE(store.rightDirty());
    ASSERT_EQ(panels.lossQuestions.size(), 1U);
    EXPECT_EQ(panels.lossQuestions[0].otherFormat, "") << "a side is ADI text";
    panels.lossAnswer = LossAnswer::saveAnyway;
    store.saveRight();
    EXPECT_EQ(folder.names(), "a.adi");
    EXPECT_FALSE(store.rightDirty());
}

TEST_F(ComparingLogs, LeaveAFileAloneThatIsAnotherByNow) {
    loadRight(write("a.adi", {"CALL=A"}));
    rightCell(0, "CALL").write("B");
    write("a.adi", {"CALL=THEIRS"});
    store.saveRight();
    EXPECT_EQ(
        store.errorMessage()->toStdString(),
        "Speichern fehlgeschlagen:\n„a.adi“: Die Datei ist inzwischen eine andere. Noch einmal speichern "
        "ersetzt sie.");
    EXPECT_NE(folder.read("a.adi").find("THEIRS"), std::string::npos);
    EXPECT_TRUE(store.rightDirty());
    store.saveRight();
    EXPECT_NE(folder.read("a.adi").find("<CALL:1>B"), std::string::npos);
}

TEST_F(ComparingLogs, ShowAFileOfAnyFormatAndWriteNoADITextOverIt) {
    const std::string adx = "<ADX><RECORDS><RECORD><CALL>A</CALL></RECORD></RECORDS></ADX>";
    store.loadInItsFormat(CompareStore::Side::right, folder.write("a.adx", adx));
    EXPECT_EQ(store.rightDoc().records().size(), 1U);
    store.saveRight();
    EXPECT_EQ(panels.proposedNames, QStringList("a.adx"));
    EXPECT_EQ(folder.read("a.adx"), adx);
    store.loadInItsFormat(CompareStore::Side::right, write("a.adi", {"CALL=A"}));
    EXPECT_TRUE(store.hasRightFile());
}

TEST_F(ComparingLogs, LoadASideAndTellOnlyWhatChanged) {
    const QString path = write("a.adi", {"CALL=A"});
    loadRight(path);
    EXPECT_EQ(told.sent(), "rightDoc rightName rightURL");
    EXPECT_EQ(panels.offeredTypes.size(), 3);
    const tallyrig::UUID id = store.rightDoc().records()[0].id();
    loadRight(path);
    EXPECT_EQ(told.sent(), "");
    EXPECT_EQ(store.rightDoc().records()[0].id(), id) << "what is on screen still knows its record";
    loadRight(folder.path("missing.adi"));
    panels.answers = {};
    store.loadRight();
    EXPECT_EQ(told.sent(), "") << "neither a failure nor a user who cancels changes anything";
    loadLeft(write("no ADIF.adi", {}));
    EXPECT_EQ(told.sent(), "leftFile leftFileName leftURL") << "any text is read as ADI";
}

TEST_F(ComparingLogs, EditCellsOfTheirFiles) {
    loadRight(write("a.adi", {"CALL=A BAND=20m", "CALL=B"}));
    told.sent();
    rightCell(0, "BAND").write("20m");
    EXPECT_EQ(told.sent(), "") << "the text that is there already";
    rightCell(0, "BAND").write("");
    EXPECT_EQ(told.sent(), "rightDirty rightDoc");
    EXPECT_FALSE(store.rightDoc().records()[0].has("BAND"));
    const TextBinding cell = rightCell(1, "MODE");
    cell.write("CW");
    EXPECT_EQ(told.sent(), "rightDoc");
    EXPECT_EQ(cell.read(), "CW");
    const TextBinding unknown = store.rightBinding(tallyrig::UUID::fresh(), "CALL");
    unknown.write("X");
    EXPECT_EQ(unknown.read(), "");
    const TextBinding noFile = store.leftBinding(store.rightDoc().records()[0].id(), "CALL");
    noFile.write("X");
    EXPECT_EQ(noFile.read() + told.sent(), "") << "the open log is not the store's";
}

TEST_F(ComparingLogs, TellWhoseEditsAreLost) {
    QStringList lost;
    QObject::connect(&store, &CompareStore::editsLost, [&lost](const QString& name) { lost.append(name); });
    const QString path = write("a.adi", {"CALL=A"});
    for (const char* call : {"B", "C"}) {
        loadRight(path);
        rightCell(0, "CALL").write(call);
    }
    loadLeft(path);
    store.leftBinding(store.leftFile()->document.records()[0].id(), "CALL").write("X");
    store.setLeftFile(std::nullopt);
    EXPECT_EQ(lost, (QStringList{"a.adi", "a.adi"}));
}

TEST_F(ComparingLogs, SaveASideAsADIText) {
    settings.setValue(setting::adifVersion, " 3.1.4\t");
    loadRight(write("a.adx", {"CALL=A"}));
    rightCell(0, "CALL").write("ÄB");
    told.sent();
    store.saveRight();
    EXPECT_EQ(told.sent(), "rightDirty written");
    const std::string text = folder.read("a.adx");
    EXPECT_NE(text.find("<PROGRAMVERSION:5>0.3.1"), std::string::npos) << text;
    EXPECT_NE(text.find("<ADIF_VER:5>3.1.4"), std::string::npos) << text;
    EXPECT_NE(text.find("<CALL:3>ÄB "), std::string::npos) << text;
    settings.setValue(setting::adifVersion, " ");
    store.saveRight();
    EXPECT_NE(folder.read("a.adx").find("<ADIF_VER:5>3.1.7"), std::string::npos);
    settings.setValue(setting::writeHeaderOnSave, false);
    store.saveRight();
    EXPECT_EQ(folder.read("a.adx").find("<EOH>"), std::string::npos);
}

TEST_F(ComparingLogs, AskForAPlaceWhereThereIsNoFile) {
    store.saveLeftFile();
    EXPECT_TRUE(panels.proposedNames.isEmpty()) << "the open log is saved by its own store";
    store.setLeftFile(ComparedFile{{{}, {}, testing::recordsOf({"CALL=A"})}, {}, {}, true});
    store.saveLeftFile();
    EXPECT_EQ(panels.proposedNames, QStringList("Logbuch.adi"));
    EXPECT_TRUE(store.leftFile()->isDirty) << "cancelled";
    panels.answers = {folder.path("new.adi")};
    told.sent();
    store.saveLeftFile();
    EXPECT_EQ(told.sent(), "leftFileDirty leftFileName leftURL written");
    EXPECT_EQ(folder.names(), "new.adi");
}

TEST_F(ComparingLogs, StayAsTheyAreWhenSavingFails) {
    QDir().mkdir(folder.path("gone"));
    loadRight(write("gone/a.adi", {"CALL=A"}));
    rightCell(0, "CALL").write("B");
    ASSERT_TRUE(QDir(folder.path("gone")).removeRecursively());
    told.sent();
    store.saveRight();
    EXPECT_EQ(told.sent(), "errorMessage");
    EXPECT_TRUE(store.errorMessage()->startsWith("Speichern fehlgeschlagen:\n„a.adi“: "));
    EXPECT_TRUE(store.rightDirty());
    store.setErrorMessage(std::nullopt);
    ASSERT_TRUE(QDir().mkdir(folder.path("gone")));
    store.saveRight();
    EXPECT_EQ(told.sent(), "errorMessage rightDirty written") << "a file that was deleted is written again";
}

}  // namespace
}  // namespace quillon
