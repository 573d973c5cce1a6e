// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Updates/UpdateManager.h"

#include "Quillon/Platform/AppInfo.h"
#include "Quillon/Support/SignalCounter.h"
#include "Quillon/Support/StandIns.h"
#include "Quillon/Support/UpdateStandIns.h"

#include <gtest/gtest.h>

#include <string>

namespace quillon {
namespace {

using testing::manifest;

class Updates : public ::testing::Test {
  protected:
    std::string offer() const {
        return manager.updateInfo() ? manager.updateInfo()->version.toStdString() : "(none)";
    }
    /// The last answer, which the user has now read.
    std::string answer() {
        const auto last = manager.answer();
        manager.clearAnswer();
        return last ? (last->title + QLatin1Char('|') + last->text).toStdString() : "(none)";
    }
    std::string title() {
        const std::string whole = answer();
        return whole.substr(0, whole.find('|'));
    }
    void find(const QByteArray& manifestFound) {
        manager.checkManually();
        http.answer(manifestFound);
    }

    testing::MemorySettings settings;
    testing::HeldHTTP http;
    testing::NotingBrowser browser;
    UpdateManager manager{QStringLiteral("https://a.example/updates.json"), settings, http, browser};
    testing::SignalCounter told{manager};
};

TEST_F(Updates, AreOfferedAtTheStartAndNothingElseIsToldThen) {
    manager.checkOnStartup();
    http.fail("no");
    manager.checkOnStartup();
    http.answer("<html>");
    manager.checkOnStartup();
    http.answer("", 404);
    EXPECT_EQ(told.sent(), "");
    manager.checkOnStartup();
    manager.checkOnStartup();
    EXPECT_EQ(http.transfers, 4) << "one runs already";
    http.answer(manifest("99"));
    EXPECT_EQ(offer(), "99");
    EXPECT_EQ(told.sent(), "updateInfo");
}

TEST_F(Updates, AnswerWhoAsksForThemEachTime) {
    manager.checkManually();
    EXPECT_EQ(told.sent(), "isCheckingManually");
    manager.checkManually();
    EXPECT_EQ(http.transfers, 1) << "asked for already";
    http.answer(manifest("0"));
    EXPECT_EQ(told.sent(), "answer isCheckingManually");
    EXPECT_EQ(answer(), "Keine Updates verfügbar|Du verwendest bereits die neueste Version (" +
                            appVersion().toStdString() + ").");
    manager.checkManually();
    http.fail("Der Server <b>schläft</b>.");
    EXPECT_EQ(answer(), "Update-Check fehlgeschlagen|Netzwerkfehler: Der Server <b>schläft</b>.");
    find("[]");
    EXPECT_EQ(answer(), "Update-Check fehlgeschlagen|Die Update-Informationen konnten nicht gelesen werden.");
    manager.checkManually();
    http.answer("", 404);
    EXPECT_EQ(answer(), "Update-Check fehlgeschlagen|Ungültige Antwort vom Server.");
    told.sent();
    find(manifest("99"));
    EXPECT_EQ(told.sent(), "isCheckingManually2 updateInfo");
    EXPECT_EQ(answer(), "(none)");
}

TEST_F(Updates, AreLookedForOnceWhereTheUserAsksWhileTheProgramStarts) {
    manager.checkOnStartup();
    const auto first = http.last;
    manager.checkManually();
    EXPECT_FALSE(first);
    manager.checkOnStartup();
    EXPECT_EQ(http.transfers, 2);
    http.answer(manifest("0"));
    EXPECT_EQ(title(), "Keine Updates verfügbar");
}

TEST_F(Updates, ComeWithTheSystemWhereThereIsNoAddress) {
    UpdateManager packaged(QString(), settings, http, browser);
    packaged.checkOnStartup();
    packaged.checkManually();
    EXPECT_EQ(http.transfers, 0);
    EXPECT_FALSE(packaged.isCheckingManually());
    EXPECT_EQ(packaged.answer()->title, QStringLiteral("Updates kommen vom System"));
}

TEST_F(Updates, AreLoadedInTheBrowserIfTheirAddressIsOneOfTheWeb) {
    find(manifest("99", R"(, "releaseNotesUrl": "HTTP://a.example/n%20?q=1#x")"));
    manager.openReleaseNotes();
    EXPECT_EQ(offer(), "99");
    manager.openDownload();
    EXPECT_EQ(offer(), "(none)");
    EXPECT_EQ(browser.opened.join(' ').toStdString(),
              "http://a.example/n%20?q=1#x https://a.example/q.tar.xz");
    EXPECT_EQ(answer(), "(none)");
    browser.opened.clear();
    for (const char* const address :
         {"", "file:///etc/passwd", "ftp://a.example/", "javascript:alert(1)", "https://", "https:///a",
          "a.example", "https://a b/", "mailto:a@b.c"}) {
        find(manifest("99", QByteArray(R"(, "releaseNotesUrl": ")") + address + "\""));
        manager.openReleaseNotes();
        EXPECT_EQ(offer(), "99");
        EXPECT_EQ(title(), "Seite lässt sich nicht öffnen") << address;
        manager.postpone();
    }
    EXPECT_TRUE(browser.opened.isEmpty());
    browser.isThere = false;
    find(manifest("99", R"(, "downloadUrl": "https://b.example/")"));
    manager.openDownload();
    EXPECT_EQ(offer(), "(none)");
    EXPECT_NE(answer().find("https://b.example/"), std::string::npos);
}

TEST_F(Updates, AreSkippedOrPutOff) {
    find(manifest("99"));
    manager.postpone();
    EXPECT_EQ(offer(), "(none)");
    find(manifest("99"));
    manager.skipThisVersion();
    EXPECT_EQ(offer(), "(none)");
    EXPECT_EQ(settings.string(setting::skippedUpdate), QStringLiteral("99"));
    find(manifest("99"));
    EXPECT_EQ(title(), "Keine Updates verfügbar");
    told.sent();
    manager.skipThisVersion();
    manager.openDownload();
    manager.openReleaseNotes();
    EXPECT_EQ(told.sent(), "") << "there is no offer";
}

}  // namespace
}  // namespace quillon
