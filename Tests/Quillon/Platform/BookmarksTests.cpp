// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/Bookmarks.h"

#include "Quillon/Platform/RecentlyUsedList.h"
#include "Quillon/Support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <QLockFile>

namespace quillon {
namespace {

const Bookmark bookmark = {"file:///a&b.adi", "application/x-adif", "Quillon", "Quillon %f", "T2"};
const std::string nameSpaces =
    " xmlns:bookmark=\"http://www.freedesktop.org/standards/desktop-bookmarks\""
    " xmlns:mime=\"http://www.freedesktop.org/standards/shared-mime-info\"";
const std::string ours =
    "<bookmark:application name=\"Quillon\" exec=\"&apos;Quillon %f&apos;\" "
    "modified=\"T2\" count=\"1\"/>";
const std::string inInfo =
    "<metadata owner=\"http://freedesktop.org\"><mime:mime-type "
    "type=\"application/x-adif\"/><bookmark:applications>" +
    ours + "</bookmark:applications></metadata>";

std::string listOf(const std::string& content) {
    return "<xbel version='1.0'" + nameSpaces + ">" + content + "</xbel>";
}
std::string noted(const std::string& list) {
    return withBookmark(list, bookmark).value_or("(none)");
}

TEST(Bookmarks, AreAddedBehindThoseOfOthers) {
    const std::string entry =
        "  <bookmark href=\"file:///a&amp;b.adi\" added=\"T2\" modified=\"T2\" "
        "visited=\"T2\"><info>" +
        inInfo + "</info></bookmark>\n";
    const std::string others =
        "<!-- ü --><bookmark  href='file:///a'\n added=\"x\"><info/><foreign:x/></bookmark>";
    EXPECT_EQ(noted(listOf(others)), listOf(others + entry));
    EXPECT_EQ(noted(""), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<xbel" + nameSpaces +
                             " version=\"1.0\">\n" + entry + "</xbel>\n");
    EXPECT_EQ(noted("<xbel/>"), "<xbel" + nameSpaces + ">" + entry + "</xbel>");
}

TEST(Bookmarks, KeepWhatOthersToldOfTheFile) {
    const std::string href = "<bookmark href='file:///a&amp;b.adi' visited = 'T1' added=\"T0\"";
    const std::string seen =
        "<bookmark modified=\"T2\" href='file:///a&amp;b.adi' visited = \"T2\" added=\"T0\"";
    EXPECT_EQ(noted(listOf(href + "/>")), listOf(seen + "><info>" + inInfo + "</info></bookmark>"));
    EXPECT_EQ(noted(listOf(href + "><info ><metadata owner='other'/></info></bookmark>")),
              listOf(seen + "><info ><metadata owner='other'/>" + inInfo + "</info></bookmark>"));
    const std::string before =
        "><info><metadata owner='http://freedesktop.org'><bookmark:applications>"
        "<bookmark:application name='Editor' count='3'/>";
    const std::string after = "</bookmark:applications><bookmark:groups/></metadata></info></bookmark>";
    EXPECT_EQ(noted(listOf(href + before + after)), listOf(seen + before + ours + after));
    EXPECT_EQ(
        noted(listOf(href + before +
                     "<bookmark:application count='7' modified='T1' name='Quillon'></bookmark:application>" +
                     after)),
        listOf(seen + before +
               "<bookmark:application exec=\"&apos;Quillon %f&apos;\" count=\"8\" modified=\"T2\" "
               "name='Quillon'></bookmark:application>" +
               after));
}

TEST(Bookmarks, LeaveAloneWhatIsNoList) {
    for (const std::string text :
         {"<xbel>", "rubbish", "<html/>", "<xbel xmlns:mime='other'/>", "<xbel></xbel><xbel/>", " \n",
          "<!DOCTYPE xbel [<!ENTITY e \"<bookmark href='file:///a&#38;b.adi'/>\">]><xbel>&e;</xbel>"}) {
        EXPECT_EQ(noted(text), "(none)") << text;
    }
    std::string wide;
    for (const char letter : std::string("\xFE\xFF<xbel/>")) {
        wide += (wide.size() < 2 ? std::string() : std::string(1, '\0')) + letter;
    }
    EXPECT_EQ(noted(wide), "(none)");
}

TEST(RecentlyUsed, IsWrittenForTheOwnerAloneAndNeverBroken) {
    const testing::TemporaryFolder home;
    const RecentlyUsedList list(home.path("data"));
    const QString file = home.path("data/recently-used.xbel");
    const QDateTime moment(QDate(2024, 2, 29), QTime(12, 30), Qt::UTC);
    const auto times = [&] {
        return QString::fromStdString(home.read("data/recently-used.xbel")).count("12:30:00.000Z");
    };
    list.note("/a b/ü.adi", moment);
    EXPECT_EQ(times(), 4);
    EXPECT_NE(home.read("data/recently-used.xbel").find("file:///a%20b/%C3%BC.adi"), std::string::npos);
    EXPECT_TRUE(QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther));
    list.note("/b.adi", moment);
    EXPECT_EQ(times(), 8);
    EXPECT_EQ(QFile::permissions(file) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    {
        QLockFile lock(file + ".lock");
        ASSERT_TRUE(lock.lock());
        list.note("/c.adi", moment);
        EXPECT_EQ(times(), 8);
    }
    home.write("data/recently-used.xbel", "broken");
    list.note("/c.adi", moment);
    EXPECT_EQ(home.read("data/recently-used.xbel"), "broken");
}

TEST(RecentlyUsed, IsWantedUnlessTheDesktopIsToForget) {
    const testing::TemporaryFolder config;
    ASSERT_TRUE(QDir(config.path(".")).mkdir("gtk-3.0"));
    EXPECT_TRUE(desktopRemembersFiles(config.path(".")));
    config.write("kdeglobals", "[General]\nUseRecent=false\n[RecentDocuments]\nUseRecent=true\n");
    EXPECT_TRUE(desktopRemembersFiles(config.path(".")));
    config.write("gtk-3.0/settings.ini", "[Settings]\ngtk-recent-files-enabled = 0\n");
    EXPECT_FALSE(desktopRemembersFiles(config.path(".")));
    config.write("gtk-3.0/settings.ini", "");
    config.write("kdeglobals", "[RecentDocuments]\nUseRecent=false\n");
    EXPECT_FALSE(desktopRemembersFiles(config.path(".")));
}

}  // namespace
}  // namespace quillon
