// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QProcess>
#include <QTemporaryDir>

#include <tuple>

namespace {

/// A desktop that knows our types of files beside those of the system, as it does where we are installed.
class FileType : public ::testing::Test {
  protected:
    static void SetUpTestSuite() {
        static const QTemporaryDir folder;
        const QString packages = folder.path() + QStringLiteral("/mime/packages");
        ASSERT_TRUE(QDir().mkpath(packages));
        for (const char* const file : {RESOURCES_FOLDER "/Desktop/quillon-mime.xml", SYSTEMS_TYPES}) {
            const QFileInfo source{QLatin1String(file)};
            ASSERT_TRUE(QFile::copy(source.filePath(), packages + QLatin1Char('/') + source.fileName()));
        }
        qputenv("XDG_DATA_HOME", "/nonexistent");
        qputenv("XDG_DATA_DIRS", folder.path().toUtf8());
        QProcess update;
        update.start(QStringLiteral(UPDATE_MIME_DATABASE), {folder.path() + QStringLiteral("/mime")});
        ASSERT_TRUE(update.waitForFinished());
        ASSERT_EQ(update.exitCode(), 0);
        EXPECT_EQ(update.readAllStandardError().toStdString(), "");
    }

    QMimeDatabase types;
};

TEST_F(FileType, OfALogIsFoundByItsNameOrItsContent) {
    const std::tuple<const char*, const char*> cases[] = {
        {"vereinsabend.adi", "application/x-adif"},      {"befunde.adi", "application/x-adif"},
        {"crosscheck/dl1qza.adi", "application/x-adif"}, {"maerzcontest.adx", "application/x-adx+xml"},
        {"crosscheck/oe3qxc.cbr", "text/x-cabrillo"},    {"maerzcontest.cbr", "text/x-cabrillo"},
        {"crosscheck/oz4qdy.edi", "text/x-reg1test"},    {"maerzcontest.edi", "text/x-reg1test"},
    };
    for (const auto& [name, type] : cases) {
        const QString file = QStringLiteral(EXAMPLES_FOLDER "/") + QLatin1String(name);
        EXPECT_EQ(types.mimeTypeForFile(file).name().toStdString(), type) << name;
        EXPECT_EQ(types.mimeTypeForFile(file, QMimeDatabase::MatchContent).name().toStdString(), type)
            << name;
    }
}

TEST_F(FileType, OfOtherFilesStays) {
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"comic.cbr", "Rar!\x1a\x07\x01", "application/vnd.comicbook-rar"},
        {"log", "<?xml version=\"1.0\"?><svg xmlns=\"http://www.w3.org/2000/svg\"/>", "image/svg+xml"},
        {"server.log", "eor 17", "text/x-log"},
        {"note.txt", "The records end with EOR.", "text/plain"},
    };
    for (const auto& [name, content, type] : cases) {
        EXPECT_EQ(types.mimeTypeForFileNameAndData(QLatin1String(name), content).name().toStdString(), type)
            << name;
    }
}

}  // namespace
