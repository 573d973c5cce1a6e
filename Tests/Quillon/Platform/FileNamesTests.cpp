// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/FileNames.h"

#include <gtest/gtest.h>

#include <QDir>

#include <tuple>

namespace quillon {
namespace {

TEST(Paths, AreLedFromTheRootAndLeftToTheSystemToFollow) {
    const std::string here = QDir::currentPath().toStdString();
    for (const std::string path : {"log.adi", "link/../log.adi", ":log.adi"}) {
        EXPECT_EQ(absolutePath(QString::fromStdString(path)).toStdString(), here + "/" + path);
    }
    EXPECT_EQ(absolutePath("/link/../log.adi"), "/link/../log.adi");
    EXPECT_EQ(absolutePath(""), "");
}

TEST(FileNames, EndInAnExtensionBehindTheLastStop) {
    const std::tuple<const char*, const char*, const char*> cases[] = {{"/a.b/log.X.Adi", "log.X", "Adi"},
                                                                       {"/a.b/log", "log", ""},
                                                                       {".adx", ".adx", ""},
                                                                       {"Mr. Smith", "Mr. Smith", ""}};
    for (const auto& [path, name, extension] : cases) {
        EXPECT_EQ(nameWithoutExtension(path), name);
        EXPECT_EQ(extensionOf(path), extension) << path;
    }
}

}  // namespace
}  // namespace quillon
