// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/Files/ReportFolder.h"

#include "Quillon/Support/TemporaryFolder.h"
#include "Tallyrig/Adjudication/CrossCheckReportWriter.h"
#include "Tallyrig/CrossCheck/ContestCrossChecker.h"
#include "Tallyrig/CrossCheck/LogWork.h"

#include <gtest/gtest.h>

#include <sys/resource.h>

#include <csignal>
#include <string>
#include <vector>

namespace quillon {
namespace {

/// Empty logs of these owners.
std::vector<tallyrig::CrossCheckLog> logsOf(const std::vector<std::string>& owners) {
    std::vector<tallyrig::CrossCheckLog> logs;
    for (const std::string& owner : owners) {
        logs.emplace_back(tallyrig::UUID::fresh(), "log", tallyrig::ADIFDocument(), owner);
    }
    return logs;
}

class ReportFolderTest : public ::testing::Test {
  protected:
    /// What is written for stations of these calls: the folder's name and the number of files.
    std::string write(const std::vector<std::string>& owners, const std::string& subfolder = ".") {
        const auto logs = logsOf(owners);
        const auto report = tallyrig::ContestCrossChecker({}).check(logs);
        const tallyrig::CrossCheckScores noScores;
        const tallyrig::CrossCheckReportWriter writer(report, logs, noScores, {});
        const auto written = writeReports(writer, path(subfolder), "Reports", work);
        if (!written) {
            return "(cancelled)";
        }
        if (const auto* const error = std::get_if<FileError>(&*written)) {
            return error->message;
        }
        const auto& result = std::get<ReportFolder>(*written);
        return result.path.substr(result.path.rfind('/') + 1) + ": " + std::to_string(result.files);
    }
    std::string path(const std::string& name) const {
        return folder.path(QString::fromStdString(name)).toStdString();
    }
    std::string names(const QString& subfolder) const {
        return QDir(folder.path(subfolder)).entryList(QDir::Files | QDir::Hidden).join('|').toStdString();
    }

    testing::TemporaryFolder folder;
    tallyrig::LogWork work;
};

TEST_F(ReportFolderTest, IsANewOneEachTime) {
    folder.write("Reports 2", "");
    EXPECT_EQ(write({"DL1ABC"}), "Reports: 3");
    EXPECT_EQ(write({}), "Reports 3: 1");
    EXPECT_EQ(names("Reports"), "DL1ABC.md|DL1ABC.txt|Rangliste.csv");
    EXPECT_EQ(work.progress(), 1);
}

TEST_F(ReportFolderTest, HasTheReportOfEachStationWhateverItsCall) {
    EXPECT_EQ(write({"A/B", "A-B", "A*B", "", "../../X", "/", std::string("N\0\nL", 4)}), "Reports: 15");
    EXPECT_EQ(
        names("Reports"),
        "------X.md|------X.txt|-.md|-.txt|A-B 2.md|A-B 2.txt|A-B 3.md|A-B 3.txt|A-B.md|A-B.txt|N--L.md|"
        "N--L.txt|Rangliste.csv|UNBEKANNT.md|UNBEKANNT.txt");
    EXPECT_EQ(folder.names(), "Reports");
    const std::string text = folder.read("Reports/A-B 2.txt");
    EXPECT_EQ(text.substr(0, text.find('\n')), "CROSS-CHECK-BERICHT A-B") << "the later one in the ranking";
    const std::string longCall(10'000, 'L');
    EXPECT_EQ(write({longCall, longCall + "X"}), "Reports 2: 5");
}

TEST_F(ReportFolderTest, TellsWhyItCannotBe) {
    folder.write("file", "");
    EXPECT_EQ(write({}, "missing"), "Der Ordner existiert nicht.");
    EXPECT_EQ(write({}, "file"), "Ein Teil des Pfads ist kein Ordner.");
    struct rlimit before = {};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
    const struct rlimit low = {100, before.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &low), 0);
    const std::string message = write({"DL1ABC"});
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &before), 0);
    std::signal(SIGXFSZ, oldHandler);
    EXPECT_EQ(message, "Die Datei ist zu groß.");
    EXPECT_EQ(names("Reports").find("DL1ABC"), std::string::npos) << "no half report";
}

TEST_F(ReportFolderTest, LeavesNothingWhenCancelled) {
    work.cancel();
    EXPECT_EQ(write({"DL1ABC"}), "(cancelled)");
    EXPECT_EQ(folder.names(), "");
}

TEST(ReportFolderName, IsOneNameThatAFileSystemTakes) {
    EXPECT_EQ(reportFolderName("CQ/WW", "2026-11-23"), "Cross-Check CQ-WW 2026-11-23");
    EXPECT_EQ(reportFolderName(std::string("../a\0\nb", 7), "2026-11-23"), "Cross-Check ..-a--b 2026-11-23");
    std::string umlauts;
    for (int count = 0; count < 300; ++count) {
        umlauts += "ä";
    }
    const std::string name = reportFolderName(umlauts, "2026-11-23");
    EXPECT_EQ(name.size(), 229U);
    EXPECT_TRUE(name.ends_with("ä 2026-11-23")) << name;
}

}  // namespace
}  // namespace quillon
