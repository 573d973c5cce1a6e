// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Keeping/FileWatch.h"

#include "Quillon/Support/LogStoreFixture.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QSignalSpy>

#include <string>

namespace quillon {
namespace {

class WatchedFile : public testing::LogStoreTest {
  protected:
    /// Another program writes the file.
    void writeAnew(const std::vector<std::string>& records) {
        // A new file each time, as many programs do it: its number is another, whatever the clock says.
        QFile::rename(folder.path("log.adi"), folder.path("log.adi~"));
        folder.write("log.adi", testing::adi(records));
    }
    std::string told() {
        watch.look();
        std::string counts;
        for (QSignalSpy* const spy : {&changed, &settled}) {
            counts += std::to_string(spy->size());
            spy->clear();
        }
        return counts;
    }

    FileWatch watch{store};
    QSignalSpy changed{&watch, &FileWatch::changedByOthers};
    QSignalSpy settled{&watch, &FileWatch::settled};
};

TEST_F(WatchedFile, TellsOfAnotherLogInItOnce) {
    openLog({"CALL=A"});
    writeAnew({"CALL=A"});
    EXPECT_EQ(told(), "00") << "the same QSOs";
    writeAnew({"CALL=B"});
    EXPECT_EQ(told(), "10");
    EXPECT_EQ(told(), "00");
    writeAnew({"CALL=C"});
    EXPECT_EQ(told(), "10");
    QFile::remove(folder.path("log.adi"));
    EXPECT_EQ(told(), "00");
    store.save();
    EXPECT_EQ(told(), "01");
    type(0, "CALL", "D");
    store.save();
    EXPECT_EQ(told(), "00") << "the log's own writing";
    writeAnew({"CALL=E"});
    EXPECT_EQ(told(), "10");
    store.open(folder.path("log.adi"));
    EXPECT_EQ(told(), "01");
    store.newLog();
    writeAnew({"CALL=F"});
    EXPECT_EQ(told(), "00");
}

TEST_F(WatchedFile, IsNoticedWithoutBeingLookedAt) {
    openLog({"CALL=A"});
    writeAnew({"CALL=B"});
    ASSERT_TRUE(changed.wait());
    // By the file that took the place of the one that was opened.
    QFile file(folder.path("log.adi"));
    ASSERT_TRUE(file.open(QIODevice::Append) && file.write("<CALL:1>C<EOR>\n") > 0);
    file.close();
    ASSERT_TRUE(changed.wait());
}

}  // namespace
}  // namespace quillon
