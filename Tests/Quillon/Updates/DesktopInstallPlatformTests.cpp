// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Updates/DesktopInstallPlatform.h"

#include "Quillon/Support/TemporaryFolder.h"
#include "Quillon/Support/TestArchive.h"
#include "Quillon/Support/UpdateStandIns.h"
#include "Quillon/Updates/UpdateInstaller.h"

#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSignalSpy>

#include <sys/stat.h>

#include <filesystem>
#include <string>
#include <vector>

namespace quillon {
namespace {

namespace fs = std::filesystem;
using testing::ArchiveEntry;
using testing::file;
using testing::folder;
using testing::link;
using Kind = UpdateInstaller::Phase::Kind;

/// The real one, but for the end of the program.
class Desktop : public DesktopInstallPlatform {
  public:
    using DesktopInstallPlatform::DesktopInstallPlatform;

    /// Of a process that has ended.
    qint64 processID() override {
        QProcess ended;
        ended.start(QStringLiteral("/bin/true"), {});
        ended.waitForStarted();
        const qint64 id = ended.processId();
        ended.waitForFinished();
        return id;
    }
    Outcome spawnDetached(const QString& executable, const QStringList& arguments) override {
        EXPECT_EQ(QProcess::execute(executable, arguments), 0);
        return std::nullopt;
    }
    void terminateApplication() override {}
    void exitApplication() override {}
    Outcome move(const QString& from, const QString& to) override {
        return to.endsWith(failingMove) ? Outcome(InstallError{QStringLiteral("no move")})
                                        : DesktopInstallPlatform::move(from, to);
    }

    QString failingMove = QStringLiteral("/nothing");
};

/// A bundle in a folder whose name a shell takes for many things.
class Bundle : public ::testing::Test {
  protected:
    Bundle() {
        QDir().mkpath(bundle + QStringLiteral("/bin"));
        temporary.write(inBundle("bin/Quillon"), "old");
    }
    static QString inBundle(const char* path) {
        return QStringLiteral("a \"b\" $HOME 'c' `d`;&\\/Quillon.app/") + QLatin1String(path);
    }
    /// The message at the end, or nothing.
    std::string install(const std::vector<ArchiveEntry>& entries) {
        const QByteArray archive = QByteArray::fromStdString(testing::archiveOf(entries));
        UpdateInstaller installer(http, platform);
        QSignalSpy changed(&installer, &UpdateInstaller::phaseChanged);
        installer.downloadAndInstall(
            QStringLiteral("https://quillon.example/q.tar.xz"),
            QString::fromLatin1(QCryptographicHash::hash(archive, QCryptographicHash::Sha256).toHex()));
        if (http.last) {
            http.answer(archive);
        }
        while (installer.phase().kind != Kind::failed && installer.phase().kind != Kind::relaunching) {
            changed.wait();
        }
        return installer.phase().message.toStdString();
    }
    std::string program() const { return temporary.read(inBundle("bin/Quillon")); }
    std::string beside() const {
        return QDir(QFileInfo(bundle).path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)
            .join(QLatin1Char(' '))
            .toStdString();
    }
    static unsigned int mode(const QString& path) {
        return static_cast<unsigned int>(fs::status(path.toStdString()).permissions());
    }

    testing::TemporaryFolder temporary;
    testing::HeldHTTP http;
    const QString bundle = QFileInfo(temporary.path(inBundle("x"))).path();
    Desktop platform{bundle + QStringLiteral("/bin")};
};

TEST_F(Bundle, IsReplacedWithModesAndLinksAndStarted) {
    const std::string script = "#!/bin/sh\necho \"$0\" > \"$(dirname \"$0\")/../started\"\n";
    const mode_t mask = ::umask(077);
    EXPECT_EQ(
        install({folder("Quillon.app"), folder("Quillon.app/bin", 0755),
                 file("Quillon.app/bin/Quillon", script, 0755), file("Quillon.app/LICENSE", "text", 0444),
                 link("Quillon.app/lib", "bin/../bin"), link("Quillon.app/run", "bin/Quillon")}),
        "Entpacken schlug fehl (Exit 1): Das Archiv enthält einen unzulässigen Eintrag: Quillon.app/lib");
    EXPECT_EQ(program(), "old");
    EXPECT_EQ(install({folder("Quillon.app"), folder("Quillon.app/bin", 0755),
                       file("Quillon.app/bin/Quillon", script, 0755),
                       file("Quillon.app/LICENSE", "text", 0444), link("Quillon.app/run", "bin/Quillon")}),
              "");
    ::umask(mask);
    EXPECT_EQ(temporary.read(inBundle("started")), bundle.toStdString() + "/bin/Quillon\n");
    EXPECT_EQ(mode(bundle), 0755U);
    EXPECT_EQ(mode(bundle + "/bin"), 0755U);
    EXPECT_EQ(mode(bundle + "/bin/Quillon"), 0755U);
    EXPECT_EQ(mode(bundle + "/LICENSE"), 0444U);
    EXPECT_EQ(fs::read_symlink((bundle + "/run").toStdString()), "bin/Quillon");
    EXPECT_EQ(beside(), "Quillon.app") << "no backup is left";
    const QString work = std::get<QString>(platform.tempDirectory()) + "/QuillonUpdate";
    EXPECT_EQ(QDir(work).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList{"q.tar.xz"});
}

TEST_F(Bundle, StaysWhereTheNewOneIsNoneOrDoesNotGetIntoItsPlace) {
    const std::string none = "Kein App-Bundle im Archiv gefunden.";
    EXPECT_EQ(install({file("Quillon/bin/Quillon", "x", 0755)}), none);
    EXPECT_EQ(install({file("Quillon.app/bin/Quillon", "x", 0644)}), none) << "not to be run";
    EXPECT_EQ(install({folder("Quillon.app/bin/Quillon")}), none);
    EXPECT_EQ(install({file("Quillon.app")}), none);
    EXPECT_EQ(install({file("new/bin/Quillon", "x", 0755), link("Quillon.app", "new")}), none);
    EXPECT_EQ(install({}), "Archiv konnte nicht gemountet werden.");
    platform.failingMove = QStringLiteral("/Quillon.app");
    EXPECT_EQ(install({file("Quillon.app/bin/Quillon", "x", 0755)}).substr(0, 8), "no move\n");
    EXPECT_EQ(program(), "(no file)") << "nothing can be moved to where it was";
}

TEST_F(Bundle, IsWhereTheProgramRunsFrom) {
    EXPECT_EQ(DesktopInstallPlatform(QStringLiteral("/o/Quillon-2.app/bin")).bundleLocation(),
              "/o/Quillon-2.app");
    for (const char* const place : {"/usr/bin", "/o/Quillon/bin", "/o/Quillon.app", "/o/Quillon.app/lib"}) {
        const QString folderOfProgram = QString::fromLatin1(place);
        EXPECT_EQ(DesktopInstallPlatform(folderOfProgram).bundleLocation(), folderOfProgram);
    }
}

TEST_F(Bundle, IsInstalledByOneProgramAtATimeFromAFolderOfItsUser) {
    const QString folder = std::get<QString>(platform.tempDirectory());
    EXPECT_EQ(mode(folder), 0700U);
    {
        const auto lock = platform.lockInstallation(folder);
        ASSERT_TRUE(std::holds_alternative<InstallLock>(lock));
        Desktop other(bundle + QStringLiteral("/bin"));
        EXPECT_EQ(std::get<InstallError>(other.lockInstallation(folder)).text,
                  "Ein anderes Fenster von Quillon installiert gerade.");
    }
    EXPECT_TRUE(std::holds_alternative<InstallLock>(platform.lockInstallation(folder)));

    fs::rename(folder.toStdString(), folder.toStdString() + "-away");
    fs::create_symlink(folder.toStdString() + "-away", folder.toStdString());
    EXPECT_EQ(install({}), "Der Ordner „" + folder.toStdString() + "“ gehört nicht dir allein.");
    fs::remove(folder.toStdString());
    fs::rename(folder.toStdString() + "-away", folder.toStdString());

    // A trap in the place of what is to be removed.
    temporary.write(QStringLiteral("precious"), "kept");
    fs::remove_all((folder + "/QuillonUpdate").toStdString());
    fs::create_directory_symlink(temporary.path({}).toStdString(), (folder + "/QuillonUpdate").toStdString());
    EXPECT_EQ(install({file("x")}), "Kein App-Bundle im Archiv gefunden.");
    EXPECT_EQ(temporary.read(QStringLiteral("precious")), "kept");
    EXPECT_FALSE(fs::is_symlink((folder + "/QuillonUpdate").toStdString()));
}

}  // namespace
}  // namespace quillon
