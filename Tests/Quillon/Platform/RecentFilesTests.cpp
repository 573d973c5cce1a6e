// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/RecentFiles.h"

#include "Quillon/Platform/Settings.h"
#include "Quillon/Support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <QDir>

namespace quillon {
namespace {

class Recent : public ::testing::Test {
  protected:
    std::string names() {
        QStringList names;
        for (const QString& path : RecentFiles(settings).paths()) {
            names.append(path.section(QLatin1Char('/'), -1));
        }
        return names.join(QLatin1Char(' ')).toStdString();
    }
    void add(const QString& name) { RecentFiles(settings).add(folder.write(name, "")); }

    testing::TemporaryFolder folder;
    PassingSettings settings;
};

TEST_F(Recent, AreTheLastTenTheNewestFirst) {
    EXPECT_EQ(names(), "");
    for (const char* const name : {"a", "b", "c", "d", "e", "f", "g", "h", "i", "j", "k", "c"}) {
        add(name);
    }
    EXPECT_EQ(names(), "c k j i h g f e d b");
    RecentFiles(settings).clear();
    EXPECT_EQ(names(), "");
}

TEST_F(Recent, AreOneFileByWhateverPath) {
    ASSERT_TRUE(QDir(folder.path(".")).mkdir("sub") && QFile::link(folder.path("sub"), folder.path("link")));
    const QString path = folder.write("sub/a.adi", "");
    for (const char* const other : {"sub/./a.adi", "link/a.adi", "link/../sub/a.adi", "sub/a.adi"}) {
        RecentFiles(settings).add(folder.path(other));
        EXPECT_EQ(RecentFiles(settings).paths(), QStringList(path)) << other;
    }
}

TEST(PassingFiles, LieInOrBelowTheFoldersForThem) {
    const testing::TemporaryFolder folder;
    ASSERT_TRUE(QDir(folder.path(".")).mkpath("cache/deep") && QDir(folder.path(".")).mkdir("cached") &&
                QFile::link(folder.path("cache"), folder.path("link")));
    const QStringList passing(folder.path("cache"));
    for (const char* const name : {"cache/a", "cache/deep/b", "link/a"}) {
        EXPECT_TRUE(liesIn(passing, folder.path(name))) << name;
    }
    for (const char* const name : {"cached/c", "cache", "link"}) {
        EXPECT_FALSE(liesIn(passing, folder.path(name))) << name;
    }
    EXPECT_TRUE(liesIn(foldersOfPassingFiles(), folder.path("a")));
}

TEST_F(Recent, AreNoneWhereTheSettingIsSomethingElse) {
    for (const QVariant& wrong :
         {QVariant(17), QVariant(QStringLiteral("relative")), QVariant(QByteArray("/a")),
          QVariant(QStringList{QString(), QStringLiteral("a")})}) {
        settings.setValue("recentFiles", wrong);
        EXPECT_EQ(names(), "") << wrong.typeName();
    }
    settings.setValue("recentFiles", "/only");
    EXPECT_EQ(names(), "only");
}

TEST(NamesOfFiles, TellAsMuchOfTheFolderAsSetsThemApart) {
    EXPECT_EQ(distinctNames({"/a/x/log.adi", "/b/x/log.adi", "/b/y/log.adi", "/b/x/other.adi", "/log.adi"}),
              QStringList({QStringLiteral("log.adi – a/x"), QStringLiteral("log.adi – b/x"),
                           QStringLiteral("log.adi – y"), "other.adi", "log.adi"}));
    EXPECT_EQ(distinctNames({"/b/x/log", "/a/b/x/log"}),
              QStringList({QStringLiteral("log – b/x"), QStringLiteral("log – a/b/x")}));
}

}  // namespace
}  // namespace quillon
