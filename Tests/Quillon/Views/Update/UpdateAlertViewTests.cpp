// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Update/UpdateAlertView.h"

#include "Quillon/Support/InstallStandIns.h"
#include "Quillon/Support/StandIns.h"
#include "Quillon/Support/TemporaryFolder.h"
#include "Quillon/Support/UpdateStandIns.h"
#include "Quillon/Support/WidgetSearch.h"
#include "Quillon/Updates/UpdateInstaller.h"
#include "Quillon/Updates/UpdateManager.h"
#include "Quillon/Views/Window/UpdateOffers.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTextEdit>

#include <memory>
#include <string>

namespace quillon {
namespace {

using testing::manifest;

class UpdateOffer : public ::testing::Test {
  protected:
    UpdateAlertView* dialog() const { return testing::shownChild<UpdateAlertView>(window); }
    QMessageBox* answerBox() const { return testing::shownChild<QMessageBox>(window); }
    /// Lets a check find this release, and gives the dialog that offers it.
    UpdateAlertView& offer(const QByteArray& more = {}) {
        manager.postpone();
        manager.checkManually();
        http.answer(manifest("99", more));
        return *dialog();
    }
    /// The buttons from left to right, those that are off in brackets and the default one with a star.
    static std::string buttons(const QWidget& inside) {
        QStringList texts;
        for (const QPushButton* button : inside.findChildren<QPushButton*>()) {
            const QString text =
                button->text().replace("&&", "+").remove('&') + (button->isDefault() ? "*" : "");
            texts.append(button->isEnabled() ? text : '(' + text + ')');
        }
        return texts.join(" | ").toStdString();
    }
    static void press(const QWidget& inside, const char* text) {
        testing::shownButton(inside, QString::fromUtf8(text))->click();
    }
    /// What the dialog says below what the manifest says.
    static std::string status(const UpdateAlertView& view) {
        const std::string above = "Update verfügbar\nVersion 99\nVeröffentlicht: 05.03.2024\n";
        const std::string all = testing::shownTexts(view);
        return all.starts_with(above) ? all.substr(above.size()) : all;
    }

    testing::TemporaryFolder folder;
    testing::MemorySettings settings;
    testing::HeldHTTP http;
    testing::NotingBrowser browser;
    testing::StandInPlatform platform{folder.path({})};
    UpdateManager manager{QStringLiteral("https://a.example/updates.json"), settings, http, browser};
    QWidget window;
    UpdateOffers offers{manager, [this] { return std::make_unique<UpdateInstaller>(http, platform); },
                        window};
};

TEST_F(UpdateOffer, SaysWhatTheManifestSaysLetterByLetter) {
    EXPECT_EQ(testing::shownTexts(offer(R"(, "message": "<b>Neu</b>\n\u00a7 &amp; mehr")")),
              "Update verfügbar\nVersion 99\nVeröffentlicht: 05.03.2024\n<b>Neu</b>\n§ &amp; mehr");
    EXPECT_EQ(testing::shownTexts(
                  offer(R"(, "critical": true, "version": "99<i>\n\u202e", "releaseDate": "<u>bald</u>")")),
              "Wichtiges Update verfügbar\nVersion 99<i>⏎⟨RLO⟩\nVeröffentlicht: <u>bald</u>");
    EXPECT_EQ(dialog()->findChild<QTextEdit*>(), nullptr);
}

TEST_F(UpdateOffer, HasRoomForWordsOfAnyLength) {
    const QByteArray word = "\"" + QByteArray(300'000, '9') + "\"";
    window.show();
    const UpdateAlertView& view =
        offer(R"(, "message": )" + word + R"(, "version": )" + word + R"(, "releaseDate": )" + word);
    EXPECT_LT(view.width(), 600);
    EXPECT_LT(view.height(), 480);
    const QTextEdit& message = *view.findChild<QTextEdit*>();
    EXPECT_GT(message.height(), 6 * message.fontMetrics().lineSpacing());
    EXPECT_LT(message.height(), 10 * message.fontMetrics().lineSpacing());
}

TEST_F(UpdateOffer, OffersWhatCanBeDoneAboutIt) {
    EXPECT_EQ(buttons(offer()), "Überspringen | Später | Download*");
    EXPECT_EQ(buttons(offer(R"(, "sha256": " ")")), "Überspringen | Später | Download*");
    EXPECT_EQ(buttons(offer(R"(, "critical": true, "releaseNotesUrl": "https://a.example/n")")),
              "Release Notes | Später | Download*");
    const UpdateAlertView& view = offer(R"(, "sha256": "0", "releaseNotesUrl": "https://a.example/n")");
    EXPECT_EQ(buttons(view),
              "Release Notes | Überspringen | Später | Im Browser laden | Laden + installieren*");
    press(view, "&Release Notes");
    EXPECT_EQ(dialog(), &view);
    press(view, "Im &Browser laden");
    EXPECT_EQ(dialog(), nullptr);
    EXPECT_EQ(browser.opened.size(), 2);
    QTest::keyClick(&offer(), Qt::Key_Escape);
    EXPECT_EQ(dialog(), nullptr);
    EXPECT_FALSE(manager.updateInfo());
    press(offer(), "&Überspringen");
    EXPECT_EQ(dialog(), nullptr);
    EXPECT_EQ(settings.string(setting::skippedUpdate), QStringLiteral("99"));
}

TEST_F(UpdateOffer, FollowsTheInstallationAndOffersTheBrowserWhereItFails) {
    UpdateAlertView& view = offer(R"(, "sha256": "0")");
    press(view, "&Laden && installieren");
    EXPECT_EQ(status(view), "Lade Update herunter…\n0 %");
    emit http.last->responded({200, 200, {}});
    emit http.last->received(QByteArray(199, 'x'));
    EXPECT_EQ(status(view), "Lade Update herunter…\n99 %");
    EXPECT_EQ(view.findChild<QProgressBar*>()->value(), 99);
    EXPECT_EQ(buttons(view), "Überspringen | Später | Im Browser laden | (Laden + installieren*)");
    emit http.last->received("x");
    emit http.last->ended();
    EXPECT_EQ(status(view), "Prüfe SHA-256-Prüfsumme…");
    EXPECT_EQ(buttons(view), "(Überspringen) | (Später) | (Im Browser laden) | (Laden + installieren*)");
    QTest::keyClick(&view, Qt::Key_Escape);
    EXPECT_EQ(dialog(), &view) << "files are put in their places soon";
    while (status(view) == "Prüfe SHA-256-Prüfsumme…") {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    EXPECT_EQ(status(view),
              "Installation fehlgeschlagen\n"
              "SHA-256 stimmt nicht mit dem Manifest überein — Download verworfen.\n"
              "Du kannst das Archiv stattdessen im Browser laden.");
    EXPECT_EQ(buttons(view), "Überspringen | Später | Im Browser laden | Laden + installieren*");
    press(view, "&Laden && installieren");
    emit http.last->responded({200, -1, {}});
    platform.time += std::chrono::seconds(1);
    emit http.last->received("x");
    EXPECT_EQ(status(view), "Lade Update herunter…") << "nobody knows how much there is";
    EXPECT_EQ(view.findChild<QProgressBar*>()->maximum(), 0);
    const auto transfer = http.last;
    QTest::keyClick(&view, Qt::Key_Escape);
    EXPECT_EQ(dialog(), nullptr);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(transfer) << "given up";
}

TEST_F(UpdateOffer, GrowsWithTheReasonThatAnInstallationFailed) {
    window.show();
    UpdateAlertView& view = offer(R"(, "sha256": "0")");
    platform.tempError = QStringLiteral("Der Ordner ist voll. ").repeated(20);
    press(view, "&Laden && installieren");
    for (const QLabel* const label : view.findChildren<QLabel*>()) {
        EXPECT_GE(label->height(), label->heightForWidth(label->width())) << label->text().toStdString();
    }
}

TEST_F(UpdateOffer, IsNotTheOnlyAnswer) {
    QSignalSpy noticed(&offers, &UpdateOffers::noticed);
    offers.check();
    EXPECT_EQ(noticed.takeFirst().first().toString(), QStringLiteral("Suche nach Updates …"));
    http.fail("<b>nein</b>");
    EXPECT_EQ(noticed.takeFirst().first().toString(), QString());
    EXPECT_EQ(answerBox()->text().toStdString(),
              "Update-Check fehlgeschlagen\n\nNetzwerkfehler: <b>nein</b>");
    EXPECT_EQ(answerBox()->textFormat(), Qt::PlainText);
    press(*answerBox(), "OK");
    EXPECT_EQ(answerBox(), nullptr);
    EXPECT_FALSE(manager.answer());
    press(offer(R"(, "downloadUrl": "file:///etc/passwd")"), "&Download");
    EXPECT_EQ(dialog(), nullptr);
    EXPECT_TRUE(answerBox()->text().startsWith(QStringLiteral("Seite lässt sich nicht öffnen\n")));
}

}  // namespace
}  // namespace quillon
