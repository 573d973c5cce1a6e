// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/Files/LogFiles.h"

#include "Quillon/Support/LogText.h"
#include "Quillon/Support/TemporaryFolder.h"
#include "Tallyrig/CrossCheck/LogWork.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <string>
#include <vector>

namespace quillon {
namespace {

class LogFilesTest : public ::testing::Test {
  protected:
    /// The names of the logs in the folder, or why there are none.
    std::string listed(const std::string& path) const {
        const auto logs = logFilesIn(path);
        if (const auto* const error = std::get_if<FileError>(&logs)) {
            return "Fehler: " + error->message;
        }
        std::string names;
        for (const std::string& log : std::get<std::vector<std::string>>(logs)) {
            names += (names.empty() ? "" : "|") + fileName(log);
        }
        return names;
    }
    std::string path(const char* name) const { return folder.path(name).toStdString(); }

    testing::TemporaryFolder folder;
};

using FolderOfLogs = LogFilesTest;
using ManyLogs = LogFilesTest;

TEST_F(FolderOfLogs, HasThoseThatAFileManagerWouldShowInItself) {
    for (const char* name :
         {"dl10a.adi", "DL2A.ADI", "b.Cabrillo", "x.cbr", "y.edi", "z.log", "dl2a.adi", "notes.txt", "a.adx",
          "c.adif", ".hidden.adi", ".adi", "adi", "log.adi.bak", "photo.jpg", "Mr. Smith.adi"}) {
        folder.write(name, "");
    }
    ASSERT_EQ(::mkdir(path("folder.adi").c_str(), 0777), 0);
    folder.write("folder.adi/inside.adi", "");
    ASSERT_EQ(::mkfifo(path("pipe.log").c_str(), 0600), 0);
    ASSERT_EQ(::symlink("x.cbr", path("link.cbr").c_str()), 0);
    EXPECT_EQ(
        listed(path(".")),
        "a.adx|b.Cabrillo|c.adif|DL2A.ADI|dl2a.adi|dl10a.adi|Mr. Smith.adi|notes.txt|x.cbr|y.edi|z.log");
    EXPECT_EQ(listed(path("missing")), "Fehler: Der Ordner existiert nicht.");
    EXPECT_EQ(listed(path("x.cbr")), "Fehler: Ein Teil des Pfads ist kein Ordner.");
}

TEST_F(ManyLogs, ComeInTheOrderOfTheirPathsEachWithItsOwnerOrItsError) {
    // A name that is no UTF-8 is read as well as any other.
    const std::string latin1 = path("Gr") +
                               "\xFC\xDF"
                               "e.adi";
    folder.write("a.adi", testing::adi({"CALL=A OPERATOR=dl1op"}));
    ASSERT_EQ(::rename(path("a.adi").c_str(), latin1.c_str()), 0);
    const std::vector<std::string> paths = {
        path("gone.adi"), latin1,
        folder
            .write("b.cbr",
                   "START-OF-LOG: 3.0\nCALLSIGN: HB9B\n"
                   "QSO: 14000 CW 2026-01-02 1200 HB9B 599 1 DL1ABC 599 2\nEND-OF-LOG:\n")
            .toStdString(),
        folder.write("c.log", std::string_view("\x89PNG\r\n\0\0\xFF", 9)).toStdString()};
    tallyrig::LogWork work;
    const auto logs = readLogs(paths, work);
    ::unlink(latin1.c_str());  // Qt, which removes the folder, would not find it.
    ASSERT_EQ(logs.value().size(), 4U);
    EXPECT_EQ(logs->at(0).error.value().message, "Die Datei existiert nicht.");
    EXPECT_EQ(logs->at(1).owner, "DL1OP");
    EXPECT_EQ(logs->at(2).owner, "HB9B");
    EXPECT_EQ(logs->at(2).document.records().size(), 1U);
    EXPECT_TRUE(logs->at(3).document.records().empty() && !logs->at(3).error);
    EXPECT_EQ(fileName(latin1),
              "Gr\uFFFD\uFFFD"
              "e.adi");
    EXPECT_EQ(fileName("/logs//"), "logs");
    EXPECT_EQ(work.progress(), 1);
    work.cancel();
    EXPECT_FALSE(readLogs(paths, work));
}

}  // namespace
}  // namespace quillon
