// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Keeping/LogKeeper.h"

#include "Quillon/Stores/CompareStore.h"
#include "Quillon/Support/LogStoreFixture.h"

#include <gtest/gtest.h>

#include <QDateTime>
#include <QFile>
#include <QSignalSpy>

#include <memory>
#include <string>

namespace quillon {
namespace {

/// A keeper that writes as soon as the event loop lets it.
class Keeper : public testing::LogStoreTest {
  protected:
    Keeper() { start(); }
    void start() {
        keeper.reset();
        keeper = std::make_unique<LogKeeper>(store, compare, place(), LogKeeper::Pace{0, 0, 1});
        kept = std::make_unique<QSignalSpy>(keeper.get(), &LogKeeper::letGone);
        failures = std::make_unique<QSignalSpy>(keeper.get(), &LogKeeper::failed);
    }
    std::string place() const { return folder.path("kept").toStdString(); }
    /// What the keeper was told to do before has happened.
    void waitUntilKept() {
        QSignalSpy changed(keeper.get(), &LogKeeper::entriesChanged);
        while (kept->isEmpty()) {
            ASSERT_TRUE(changed.wait());
        }
    }
    /// As the next start finds it: each entry as "PATH:REASON:CALLS", the latest first.
    std::string found() const {
        std::string all;
        const KeptLogs logs(place());
        for (const KeptEntry& entry : logs.entries()) {
            const auto read = logs.read(entry);
            all += (all.empty() ? "" : " ") + entry.note.path.substr(entry.note.path.rfind('/') + 1) + ':' +
                   std::to_string(static_cast<int>(entry.note.reason)) + ':' +
                   calls(std::get<tallyrig::ADIFDocument>(read));
        }
        return all;
    }
    static std::string calls(const tallyrig::ADIFDocument& document) {
        std::string all;
        for (const tallyrig::ADIFRecord& record : document.records()) {
            all += (all.empty() ? "" : ",") + std::string(record.valueOrEmpty("CALL"));
        }
        return all;
    }

    CompareStore compare{settings, panels};
    std::unique_ptr<LogKeeper> keeper;
    std::unique_ptr<QSignalSpy> kept;
    std::unique_ptr<QSignalSpy> failures;
};

TEST_F(Keeper, KeepsWhatTheFileDoesNotHaveWhenAnotherLogComes) {
    openLog({"CALL=A"});
    type(0, "CALL", "B");
    store.newLog();
    waitUntilKept();
    EXPECT_EQ(found(), "log.adi:1:B");
    store.addRecord();
    type(0, "CALL", "N");
    openLog({"CALL=C"});
    store.newLog();
    keeper->keepNow();
    EXPECT_EQ(found(), ":2:N log.adi:1:B") << "C is in its file";
    openLog({"CALL=C"});
    type(0, "CALL", "D");
    store.open(folder.path("log.adi"));
    keeper->keepNow();
    EXPECT_EQ(found(), "log.adi:2:D :2:N log.adi:1:B") << "read anew";
    EXPECT_TRUE(keeper->leftBehind().empty()) << "the user was told at once";
}

TEST_F(Keeper, ComparesTheValuesWhateverTheFlagSays) {
    openLog({"CALL=A"});
    type(0, "CALL", "B");
    type(0, "CALL", "A");
    EXPECT_TRUE(store.isDirty());
    store.newLog();
    openLog({"CALL=A"});
    type(0, "CALL", "B");
    store.save();
    store.undo();
    store.undo();
    EXPECT_FALSE(store.isDirty()) << "and the file has B";
    keeper->end(KeptReason::terminated);
    EXPECT_EQ(found(), "log.adi:5:A log.adi:7:A") << "and what the file held before";
}

TEST_F(Keeper, KeepsChangesWhileTheyAreMadeAndForgetsThemWhenSaved) {
    openLog({"CALL=A"});
    type(0, "CALL", "B");
    while (folder.read("kept/1.kept").size() < 50) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    EXPECT_EQ(found(), "") << "the file in hand is locked";
    // As a program that was killed leaves it.
    QFile::copy(folder.path("kept/1.kept"), folder.path("kept/9.kept"));
    EXPECT_EQ(found(), "log.adi:0:B");
    QFile::remove(folder.path("kept/9.kept"));
    store.save();
    while (QFile::exists(folder.path("kept/1.kept"))) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

TEST_F(Keeper, EndKeepsAndTheNextStartBringsBack) {
    openLog({"CALL=A", "CALL=X"});
    type(0, "CALL", "B");
    keeper->end(KeptReason::windowClosed);
    type(0, "CALL", "too late");
    store.newLog();
    keeper.reset();
    EXPECT_EQ(found(), "log.adi:3:B,X");

    start();
    ASSERT_EQ(keeper->leftBehind().size(), 1U);
    store.addRecord();
    EXPECT_FALSE(keeper->bringBack(keeper->leftBehind()[0]));
    waitUntilKept();
    EXPECT_EQ(kept->size(), 1) << "the log begun in between";
    EXPECT_EQ(calls(store.document()), "B,X");
    EXPECT_EQ(title(), "log.adi — bearbeitet");
    EXPECT_FALSE(store.canUndo());
    EXPECT_EQ(found(), ":2:") << "what was brought back is in hand";
    type(1, "CALL", "Y");
    keeper->end(KeptReason::displayLost);
    EXPECT_EQ(found(), "log.adi:6:B,Y :2:");
    store.newLog();
    start();
    keeper->dismiss(keeper->leftBehind());
    EXPECT_TRUE(keeper->leftBehind().empty());
    const auto entry = keeper->entries()[0];
    EXPECT_FALSE(keeper->bringBack(entry));
    EXPECT_TRUE(keeper->bringBack(entry)) << "in hand already";
    store.save();
    keeper->end(KeptReason::windowClosed);
    EXPECT_EQ(found(), "log.adi:7:A,X :2:");
    EXPECT_NE(folder.read("log.adi").find("<CALL:1>Y"), std::string::npos);
}

TEST_F(Keeper, KeepsWhatAFileHeldOnceUnlessOthersWroteToIt) {
    openLog({"CALL=A"});
    for (const char* call : {"B", "C", "D"}) {
        type(0, "CALL", call);
        store.save();
        store.save();
    }
    EXPECT_EQ(found(), "log.adi:7:A");
    folder.write("log.adi", testing::adi({"CALL=Other"}));
    store.saveReplacing();
    EXPECT_EQ(found(), "log.adi:7:Other log.adi:7:A");
    EXPECT_FALSE(keeper->bringBack(keeper->entries()[0]));
    EXPECT_EQ(calls(store.document()), "Other");
    keeper->end(KeptReason::windowClosed);
    EXPECT_EQ(found(), "log.adi:3:Other log.adi:7:Other log.adi:7:A");
}

TEST_F(Keeper, KeepsWhatThisProgramWroteWhenAnotherLogTakesItsPlace) {
    openLog({"CALL=A"});
    type(0, "CALL", "B");
    keeper->end(KeptReason::windowClosed);
    start();
    store.save();
    // The times of files are coarse: one that is written right after the keeping may look older.
    QFile file(folder.path("log.adi"));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.setFileTime(QDateTime::currentDateTime().addSecs(1), QFileDevice::FileModificationTime));
    file.close();
    EXPECT_FALSE(keeper->bringBack(keeper->leftBehind().at(0)));
    type(0, "CALL", "C");
    QSignalSpy changed(&store, &LogStore::changedOnDisk);
    store.save();
    EXPECT_EQ(changed.size(), 1) << "saved after the other was kept";
    store.saveReplacing();
    EXPECT_EQ(found(), "log.adi:7:B log.adi:7:A");
    panels.answers = {folder.path("log.adi")};
    store.newLog();
    store.addRecord();
    type(0, "CALL", "N");
    store.saveWithPanel();
    EXPECT_EQ(found(), "log.adi:7:C log.adi:7:B log.adi:7:A");
    compare.load(CompareStore::Side::right, folder.path("log.adi"));
    compare.saveRight();
    EXPECT_EQ(found(), "log.adi:7:N log.adi:7:C log.adi:7:B log.adi:7:A");
}

TEST_F(Keeper, KeepsALogInWhoseFileAnExportStands) {
    openLog({"CALL=A"});
    store.save();
    panels.answers = {folder.path("log.adi"), folder.path("other.cbr"), folder.path("other.cbr")};
    QSignalSpy changed(&store, &LogStore::changedOnDisk);
    for (int count = 0; count < 3; ++count) {
        store.exportCabrillo({});
    }
    EXPECT_FALSE(store.isDirty());
    EXPECT_EQ(changed.size(), 1);
    keeper->end(KeptReason::windowClosed);
    EXPECT_EQ(found(), "log.adi:3:A log.adi:7:A") << "an export can be made again";
}

TEST_F(Keeper, KeepsTheSidesOfAComparisonAsWell) {
    const auto edit = [this](const char* call) {
        compare.rightBinding(compare.rightDoc().records()[0].id(), "CALL").write(call);
    };
    compare.load(CompareStore::Side::right, folder.write("r.adi", testing::adi({"CALL=R"})));
    edit("S");
    compare.load(CompareStore::Side::right, folder.write("q.adi", testing::adi({"CALL=Q"})));
    waitUntilKept();
    EXPECT_EQ(found(), "r.adi:2:S");
    edit("T");
    compare.saveRight();
    EXPECT_EQ(found(), "q.adi:7:Q r.adi:2:S");
    EXPECT_EQ(keeper->entries()[0].note.records, 1U);
    compare.load(CompareStore::Side::left, folder.path("r.adi"));
    compare.leftBinding(compare.leftFile()->document.records()[0].id(), "CALL").write("L");
    edit("U");
    keeper->end(KeptReason::terminated);
    EXPECT_EQ(found(), "q.adi:5:U r.adi:5:L q.adi:7:Q r.adi:2:S");
}

TEST_F(Keeper, FailureIsToldOnceAndLeavesTheLogAlone) {
    folder.write("kept", "a file where the folder should be");
    openLog({"CALL=A"});
    for (const char* call : {"B", "C"}) {
        type(0, "CALL", call);
        store.save();
        type(0, "CALL", "D");
        keeper->keepNow();
        store.newLog();
        openLog({"CALL=A"});
    }
    ASSERT_EQ(failures->size(), 1);
    EXPECT_EQ(failures->at(0).at(0).toString().toStdString(),
              "Was in der Datei stand, wird nicht aufgehoben: Ein Teil des Pfads ist kein Ordner.");
    EXPECT_EQ(error(), "(none)");
}

}  // namespace
}  // namespace quillon
