// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Updates/UpdateInstaller.h"

#include "Quillon/Support/InstallStandIns.h"
#include "Quillon/Support/TemporaryFolder.h"
#include "Quillon/Support/UpdateStandIns.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

#include <memory>
#include <optional>
#include <string>

namespace quillon {
namespace {

using Kind = UpdateInstaller::Phase::Kind;

/// Of "abc".
constexpr auto sum = "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad";

class Installer : public ::testing::Test {
  protected:
    void SetUp() override {
        QObject::connect(installer.get(), &UpdateInstaller::phaseChanged, [this] {
            const char phase = "idvsrf"[static_cast<int>(installer->phase().kind)];
            if (!phases.ends_with(phase)) {
                phases += phase;
            }
        });
    }
    void begin(const std::optional<QString>& sha256 = QString::fromLatin1(sum)) {
        phases.clear();
        platform.asked();
        installer->downloadAndInstall(QStringLiteral("https://quillon.example/r/q.tar.xz"), sha256);
    }
    /// Installs "abc" and says how that ended: nothing, or the message.
    std::string install(const std::optional<QString>& sha256 = QString::fromLatin1(sum)) {
        begin(sha256);
        http.answer("abc");
        waitForEnd();
        return installer->phase().message.toStdString();
    }
    void waitForEnd() {
        QSignalSpy changed(installer.get(), &UpdateInstaller::phaseChanged);
        while (installer->phase().kind != Kind::failed && installer->phase().kind != Kind::relaunching) {
            ASSERT_TRUE(changed.wait());
        }
    }

    testing::TemporaryFolder folder;
    testing::HeldHTTP http;
    testing::StandInPlatform platform{folder.path({})};
    std::unique_ptr<UpdateInstaller> installer = std::make_unique<UpdateInstaller>(http, platform);
    std::string phases;
};

const std::string begun = "remove QuillonUpdate\nwritable /opt\nattach QuillonUpdate/q.tar.xz\n";
const std::string copied = begun + "look /mnt/New.app\nditto /mnt/New.app /opt/.Quillon.app.new-ID\n";
const std::string moved = copied + "move /opt/Quillon.app /opt/.Quillon.app.old-ID\n";
const std::string replaced = moved + "move /opt/.Quillon.app.new-ID /opt/Quillon.app\n";
const std::string started =
    "spawn /bin/sh -c while kill -0 4711 2>/dev/null; do sleep 0.2; done; exec '/opt/Quillon.app/bin/p'\n";

TEST_F(Installer, PutsTheNewProgramInThePlaceOfTheOldAndStartsIt) {
    EXPECT_EQ(install(), "");
    EXPECT_EQ(phases, "dvsr");
    while (!platform.hasExited) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    EXPECT_EQ(platform.asked(), replaced + "remove /opt/.Quillon.app.old-ID\ndetach /mnt\n" + started +
                                    "after 1500\nterminate\nexit\n");
}

TEST_F(Installer, LeavesTheOldProgramWhateverFails) {
    const std::string undone = "remove /opt/.Quillon.app.new-ID\ndetach /mnt\n";
    const struct {
        const char* failing;
        std::string message;
        std::string asked;
    } cases[] = {
        {"writable", "Keine Schreibrechte in /opt.", "remove QuillonUpdate\nwritable /opt\n"},
        {"attach", "attach failed", begun},
        {"look", "Kein App-Bundle im Archiv gefunden.", begun + "look /mnt/New.app\ndetach /mnt\n"},
        {"ditto", "ditto failed", copied + undone},
        {"move /opt/Q", "move failed", moved + undone},
        {"move /opt/.Quillon.app.new", "move failed",
         replaced + "remove /opt/Quillon.app\nmove /opt/.Quillon.app.old-ID /opt/Quillon.app\n" + undone},
        {"spawn", "spawn failed", replaced + "remove /opt/.Quillon.app.old-ID\ndetach /mnt\n" + started},
    };
    for (const auto& [failing, message, asked] : cases) {
        platform.failing = QStringList{QString::fromLatin1(failing)};
        EXPECT_EQ(install(), message) << failing;
        EXPECT_EQ(platform.asked(), asked) << failing;
        EXPECT_EQ(phases.back(), 'f');
    }
    platform.failing = QStringList{QStringLiteral("move /opt/.")};
    EXPECT_EQ(install().find("move failed\nDas bisherige Programm liegt in /opt/.Quillon.app.old-"), 0U);
    platform.failing.clear();
    platform.content = QStringList{QStringLiteral("app"), QStringLiteral("New.apps")};
    EXPECT_EQ(install(), "Kein App-Bundle im Archiv gefunden.");
    platform.bundle = QStringLiteral("/usr/bin");
    EXPECT_EQ(install(), "Läuft nicht aus einem App-Bundle (/usr/bin) — bitte Archiv manuell installieren.");
    EXPECT_EQ(platform.asked(), "remove QuillonUpdate\n");
    EXPECT_EQ(phases, "dvsf") << "only after the download";
}

TEST_F(Installer, TakesNoArchiveButThatOfTheManifest) {
    const std::string noSum = "Manifest enthält keine SHA-256 — Auto-Install nicht möglich.";
    const std::string otherSum = "SHA-256 stimmt nicht mit dem Manifest überein — Download verworfen.";
    EXPECT_EQ(install(std::nullopt), noSum);
    EXPECT_EQ(install(QStringLiteral(" \n")), noSum);
    EXPECT_EQ(install(QString(sum).replace(QLatin1Char('b'), QLatin1Char('c'))), otherSum);
    EXPECT_EQ(install(QString(sum).chopped(1)), otherSum);
    EXPECT_EQ(platform.asked(), "remove QuillonUpdate\n");
    EXPECT_EQ(phases, "dvf");
    EXPECT_EQ(install(QLatin1Char(' ') + QString(sum).toUpper() + QLatin1Char('\n')), "");
}

TEST_F(Installer, HashesWhatIsLargerThanABlock) {
    begin(QStringLiteral("acd560a1e1d523c090ab93aed616d154b7b5e8206a153cced729d83f2c7dcfc3"));
    http.answer(QByteArray(4'194'304 + 1, 'a'));
    waitForEnd();
    EXPECT_EQ(installer->phase().message, QString());
}

TEST_F(Installer, AsksNobodyForAnAddressThatIsNotOnTheWeb) {
    for (const char* address : {"", "file:///tmp/q.tar.xz", "javascript:alert(1)", "ftp://quillon.example/q",
                                "https://", "q.tar.xz", "http://[::1"}) {
        phases.clear();
        installer->downloadAndInstall(QString::fromLatin1(address), QString::fromLatin1(sum));
        EXPECT_EQ(installer->phase().message, QStringLiteral("Download-URL ungültig.")) << address;
    }
    EXPECT_EQ(platform.asked(), "");
    EXPECT_TRUE(http.transfers == 0);
}

TEST_F(Installer, IsNotDisturbedAndMayBeTriedAgain) {
    begin();
    installer->downloadAndInstall(QStringLiteral("https://quillon.example/other"), std::nullopt);
    EXPECT_EQ(http.transfers, 1);
    UpdateInstaller other(http, platform);
    other.downloadAndInstall(QStringLiteral("https://quillon.example/r/q.tar.xz"), std::nullopt);
    EXPECT_EQ(other.phase().message, QStringLiteral("locked"));
    EXPECT_EQ(http.transfers, 1) << "another program's download is left alone";
    emit http.last->responded({200, 4, {}});
    emit http.last->received("abc");
    EXPECT_EQ(installer->phase(), (UpdateInstaller::Phase{Kind::downloading, 0.75, {}}));
    emit http.last->ended();
    EXPECT_EQ(installer->phase().message, QStringLiteral("Download unvollständig — bitte erneut versuchen."));
    EXPECT_EQ(install(), "");
}

TEST_F(Installer, ThatEndsWithTheProgramGivesUpWhatIsNotInPlace) {
    platform.isSlow = true;
    begin();
    http.answer("abc");
    while (installer->phase().kind != Kind::installing) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    installer.reset();
    EXPECT_EQ(platform.asked(), copied + "remove /opt/.Quillon.app.new-ID\ndetach /mnt\n");
}

TEST_F(Installer, RemovesWhatInterruptedOnesLeft) {
    const QString id = QStringLiteral("01234567-89ab-cdef-0123-456789abcdef");
    platform.beside = QStringList{".Quillon.app.old-" + id, ".Quillon.app.new-" + id, ".Quillon.app.old-2025",
                                  ".Other.app.old-" + id,   "Quillon.app.old-" + id,  "Quillon.app"};
    EXPECT_EQ(install(), "");
    const std::string asked = platform.asked();
    EXPECT_NE(asked.find("remove /opt/.Quillon.app.old-ID\nremove /opt/.Quillon.app.old-ID\n"
                         "remove /opt/.Quillon.app.new-ID\ndetach"),
              std::string::npos)
        << asked;
}

}  // namespace
}  // namespace quillon
