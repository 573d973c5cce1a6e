// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/Files/OutdoorExport.h"

#include "Quillon/Platform/Files/UniqueNames.h"
#include "Quillon/Support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillon {
namespace {

TEST(UniqueNames, PutTheFirstFreeNumberInFrontOfTheExtension) {
    UniqueNames names;
    std::string given;
    for (const char* const name : {"A", "A", "A 2", "A", "a", "\u00C4", "A\u0308"}) {
        given += names.next(name, ".adi") + '|';
    }
    EXPECT_EQ(given, "A.adi|A 2.adi|A 2 2.adi|A 3.adi|a.adi|\u00C4.adi|A\u0308 2.adi|");
}

class OutdoorExport : public ::testing::Test {
  protected:
    /// Exports files of these names, each with its position as its content; why that failed, if it did.
    std::string write(const std::vector<std::string>& names, const std::string& subfolder = ".") {
        const tallyrig::OutdoorExportFiles files(names.size(), [&](std::size_t index) {
            return tallyrig::OutdoorExportFile{"", names[index], std::to_string(index), 1};
        });
        visited.clear();
        const auto error = exportOutdoorFiles(
            files, folder.path(QString::fromStdString(subfolder)).toStdString(),
            [this](const tallyrig::OutdoorExportFile& file) { visited += file.filename + '|'; });
        return error ? error->message : "(none)";
    }

    testing::TemporaryFolder folder;
    std::string visited;
};

TEST_F(OutdoorExport, ReplacesWhatIsThereButNotItsOwnFiles) {
    folder.write("A@X 1.adi", "old");
    EXPECT_EQ(write({"A@X 1.adi", "A@X 1.adi"}), "(none)");
    EXPECT_EQ(folder.read("A@X 1.adi") + folder.read("A@X 1 2.adi"), "01");
    EXPECT_EQ(visited, "A@X 1.adi|A@X 1 2.adi|");
    const tallyrig::OutdoorExportFiles one(1, [](std::size_t) {
        return tallyrig::OutdoorExportFile{"", "a/b.adi", "", 1};
    });
    EXPECT_TRUE(exportOutdoorFiles(one, std::nullopt, [](const auto&) {})) << "only named";
}

TEST_F(OutdoorExport, EndsAtANameThatLeadsElsewhere) {
    const std::string reason =
        "“: Der Name einer Datei darf weder „/“ noch „..“ noch Steuerzeichen enthalten.";
    folder.write("DL1ABC", "");
    for (const std::string& name :
         {std::string("DL1ABC/P@X .adi"), std::string("/tmp/x.adi"), std::string("..@X .adi"),
          std::string("\0.adi", 5), std::string("\r.adi"), std::string("A\nB.adi"), std::string("A\vB.adi"),
          std::string("A\u0085.adi"), std::string("A\u2028B.adi")}) {
        EXPECT_EQ(write({"first.adi", name, "last.adi"}), "„" + name + reason);
        EXPECT_EQ(visited, "first.adi|");
        EXPECT_EQ(folder.names(), "DL1ABC first.adi");
    }
}

TEST_F(OutdoorExport, TellsWhichFileCouldNotBeWritten) {
    EXPECT_EQ(write({"a.adi"}, "missing"), "„a.adi“: Der Ordner existiert nicht.");
    const std::string longName = std::string(10'000, 'L') + ".adi";
    EXPECT_EQ(write({longName}), "„" + std::string(200, 'L') + "…“: Der Dateiname ist zu lang.");
    folder.write("file", "");
    EXPECT_EQ(write({"a.adi"}, "file"), "„a.adi“: Ein Teil des Pfads ist kein Ordner.");
    EXPECT_EQ(folder.names(), "file");
}

}  // namespace
}  // namespace quillon
