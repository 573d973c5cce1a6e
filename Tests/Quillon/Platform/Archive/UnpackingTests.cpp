// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/Archive/Unpacking.h"

#include "Quillon/Support/TemporaryFolder.h"
#include "Quillon/Support/TestArchive.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

namespace quillon {
namespace {

namespace fs = std::filesystem;
using testing::ArchiveEntry;
using testing::archiveOf;
using testing::file;
using testing::folder;
using testing::hardLink;
using testing::link;

class Unpacked : public ::testing::Test {
  protected:
    Unpacked() { fs::create_directories(place()); }
    std::string place() const { return temporary.path(QStringLiteral("place")).toStdString(); }

    /// What is there afterwards as "PATH:MODE" or "PATH>TARGET", or the message.
    std::string unpacked(const std::string& archive, const UnpackLimits& limits = {}) {
        return all(unpack(
            written(archive), place(), [] { return true; }, limits));
    }
    std::string written(const std::string& archive) const {
        // A file that is written over is waited for by some file systems.
        fs::remove(temporary.path(QStringLiteral("a.tar.xz")).toStdString());
        return temporary.write(QStringLiteral("a.tar.xz"), archive).toStdString();
    }
    std::string all(const std::variant<std::string, UnpackError>& result) const {
        if (const auto* const error = std::get_if<UnpackError>(&result)) {
            EXPECT_TRUE(fs::is_empty(place())) << "nothing stays of what is refused";
            return (error->kind == UnpackError::Kind::notAnArchive ? "none: " : "") + error->message;
        }
        const fs::path made = std::get<std::string>(result);
        EXPECT_EQ(fs::status(made).permissions(), fs::perms::owner_all);
        std::vector<std::string> found;
        for (const auto& entry : fs::recursive_directory_iterator(made)) {
            std::string text = entry.path().lexically_relative(made).string();
            if (entry.is_symlink()) {
                text += '>' + fs::read_symlink(entry).string();
            } else {
                std::array<char, 8> mode = {};
                std::snprintf(mode.data(), mode.size(), ":%o",
                              static_cast<unsigned int>(entry.status().permissions()));
                text += mode.data();
            }
            found.push_back(text);
        }
        fs::remove_all(made);
        std::sort(found.begin(), found.end());
        std::string text;
        for (const std::string& each : found) {
            text += (text.empty() ? "" : " ") + each;
        }
        return text;
    }

    testing::TemporaryFolder temporary;
};

TEST_F(Unpacked, KeepsModesAndLinksAndMakesWhatIsNotNamed) {
    EXPECT_EQ(unpacked(archiveOf({folder("./"), file("./a/run", "x", 0755), folder("b", 0500),
                                  file("b/c", "x", 0466), link("l/m/up", "../n/./run"), link("to", "l/m/up"),
                                  hardLink("b/twin", "a/run")})),
              "a/run:755 a:700 b/c:444 b/twin:755 b:700 l/m/up>../n/./run l/m:700 l:700 to>l/m/up");
    EXPECT_EQ(unpacked(archiveOf({file("Log \xc3\xbc.txt")})), "Log \xc3\xbc.txt:644");
    EXPECT_EQ(unpacked(archiveOf({link("gone", "not/there")})), "gone>not/there");
}

TEST_F(Unpacked, RefusesWhateverMayReachOutOfItsFolder) {
    const std::vector<std::vector<ArchiveEntry>> hostile = {
        {file("../out")},
        {file("a/../../out")},
        {file("a/../inside")},
        {file("/tmp/quillon-out")},
        {folder("..")},
        {file(".")},
        {link("l", "/etc")},
        {link("l", "..")},
        {link("a/l", "../../out")},
        {file("b/beside"), link("a/l", "../b/beside")},
        {link("a/b/l", "../../c")},
        {link("a/b/l", "../.."), link("m", "a/b/l/../..")},
        {link("l", "a"), file("l/through")},
        {file("l/before"), link("l", "a")},
        {link("l", "a"), link("l/m", "b")},
        {link("l", "a"), hardLink("h", "l/b")},
        {hardLink("h", "/etc/passwd")},
        {hardLink("h", "../a.tar.xz")},
        {hardLink("h", "not-there")},
        {file("a"), file("a")},
        {file("a"), folder("a")},
        {file("a"), file("a/b")},
        {folder("a"), file("a")},
        {{"pipe", AE_IFIFO, 0644, {}}},
        {{"device", AE_IFCHR, 0644, {}}},
        {{"disk", AE_IFBLK, 0644, {}}},
        {file("root", "x", 04755)},
        {file("group", "x", 02755)},
        {file(std::string(5000, 'n'))},
        {file(std::string(200, 'd').replace(1, 1, "/") +
              [] {
                  std::string deep;
                  for (int level = 0; level < 70; ++level) {
                      deep += "/d";
                  }
                  return deep;
              }())},
    };
    for (const auto& entries : hostile) {
        std::vector<ArchiveEntry> behindGood = {folder("good"), file("good/file")};
        behindGood.insert(behindGood.end(), entries.begin(), entries.end());
        EXPECT_EQ(unpacked(archiveOf(behindGood)).find("Das Archiv enthält einen unzulässigen Eintrag: "), 0U)
            << entries.back().path << " > " << entries.back().target;
    }
    EXPECT_EQ(temporary.names(), "a.tar.xz place");
}

/// Gives the header at `start` the sum that its bytes have now.
void sumUp(std::string& tar, std::size_t start) {
    constexpr std::size_t at = 148;
    constexpr std::size_t length = 8;
    tar.replace(start + at, length, length, ' ');
    unsigned int sum = 0;
    for (std::size_t index = 0; index < 512; ++index) {
        sum += static_cast<unsigned char>(tar[start + index]);
    }
    std::array<char, 16> text = {};
    std::snprintf(text.data(), text.size(), "%06o", sum);
    tar.replace(start + at, 7, text.data(), 7);
}

TEST_F(Unpacked, HasBounds) {
    const std::string tooLarge = "Das Archiv ist größer, als eine Version sein kann.";
    const std::string two = archiveOf({file("a", "12345"), file("b", "67890")});
    EXPECT_EQ(unpacked(two, {10, 2}), "a:644 b:644");
    EXPECT_EQ(unpacked(two, {9, 2}), tooLarge);
    EXPECT_EQ(unpacked(two, {10, 1}), tooLarge);
    EXPECT_EQ(unpacked(archiveOf({file("a/b/c/d")}), {10, 3}), tooLarge) << "folders count";
    EXPECT_EQ(unpacked(archiveOf({file("bomb", std::string(3'000'000, '\0'))}), {2'999'999, 9}), tooLarge);
    EXPECT_EQ(unpacked(archiveOf({folder("a"), folder("a"), folder("a")}), {9, 2}), tooLarge);
    EXPECT_EQ(unpacked(archiveOf({folder("./"), folder("./"), folder("./")}), {9, 2}), tooLarge);
    // Behind the other file and what tells of the letter.
    std::string withContent = testing::tar({file("a"), file("\xc3\xbc", std::string(3'000'000, 'x'))});
    constexpr std::size_t header = 2048;
    withContent.replace(header + 156, 2, "1a");
    sumUp(withContent, header);
    EXPECT_EQ(unpacked(withContent, {2'999'999, 9}), tooLarge) << "a link, whose content is passed over";
}

TEST_F(Unpacked, IsNothingIfTheArchiveIsNotWhole) {
    const std::string damaged = "Das Archiv ist beschädigt.";
    for (const std::string& none :
         {std::string(), std::string("no archive"), testing::xz("no tar"), archiveOf({})}) {
        EXPECT_EQ(unpacked(none), "none: " + damaged);
    }
    std::string noise(1'000'000, '\0');
    std::mt19937 random(1);
    std::generate(noise.begin(), noise.end(), [&] { return static_cast<char>(random()); });
    const std::string whole = archiveOf({file("a"), file("b", noise), file("c")});
    EXPECT_EQ(unpacked(whole.substr(0, whole.size() / 2)), damaged);
    EXPECT_EQ(unpacked(std::string(whole).replace(whole.size() / 2, 4, "\1\2\3\4")), damaged);
    int left = 3;
    EXPECT_EQ(all(unpack(written(whole), place(), [&] { return --left > 0; })),
              "Das Entpacken wurde abgebrochen.");
}

TEST_F(Unpacked, StaysInItsFolderWhateverHappensToTheHeaders) {
    // Without compression, which would only hide the headers.
    const std::string good =
        testing::tar({folder("a"), file("a/f"), link("a/l", "f"), link("m", "a/l"), hardLink("a/h", "a/f")});
    const std::string pieces("/..\0a1257 \xff", 12);
    std::mt19937 random(20261123);
    int accepted = 0;
    for (int round = 0; round < 1000; ++round) {
        std::string tar = good;
        const std::size_t headers = tar.size() / 512;
        for (int change = 0; change < 3; ++change) {
            const std::size_t start = random() % headers * 512;
            // The name, the kind and the target are what matters most.
            const std::size_t at = std::vector<std::size_t>{random() % 8, 156, 157 + random() % 6,
                                                            100 + random() % 7, random() % 512}[random() % 5];
            tar[start + at] = pieces[random() % pieces.size()];
            sumUp(tar, start);
        }
        const auto result = unpack(written(tar), place(), [] { return true; }, {1000, 20});
        if (const auto* const made = std::get_if<std::string>(&result)) {
            ++accepted;
            for (const auto& entry : fs::recursive_directory_iterator(*made)) {
                std::error_code loop;
                const std::string leads = fs::weakly_canonical(entry.path(), loop).string();
                ASSERT_TRUE(loop || (leads + '/').starts_with(*made + '/'))
                    << entry.path() << " in round " << round;
                ASSERT_TRUE(entry.is_symlink() || entry.is_directory() || entry.is_regular_file());
            }
            fs::remove_all(*made);
        }
        ASSERT_TRUE(fs::is_empty(place())) << round;
        ASSERT_EQ(temporary.names(), "a.tar.xz place") << round;
    }
    EXPECT_GT(accepted, 20) << "else the test shows nothing";
}

}  // namespace
}  // namespace quillon
