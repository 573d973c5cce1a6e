// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Updates/UpdateChecker.h"

#include "Quillon/Platform/AppInfo.h"
#include "Quillon/Platform/HTTP/ModuleHTTP.h"
#include "Quillon/Support/LoopbackServer.h"
#include "Quillon/Support/StandIns.h"
#include "Quillon/Support/UpdateStandIns.h"

#include <gtest/gtest.h>

#include <QEventLoop>

#include <string>
#include <vector>

namespace quillon {
namespace {

using testing::LoopbackServer;
using testing::manifest;
using Then = LoopbackServer::Then;
using When = UpdateChecker::When;

std::string told(const UpdateChecker::Result& result) {
    if (const auto* const error = std::get_if<UpdateCheckError>(&result)) {
        const char* const names[] = {"network: ", "decoding: ", "invalidResponse: "};
        return names[static_cast<int>(error->kind)] + error->text.toStdString();
    }
    const auto& info = std::get<std::optional<VersionInfo>>(result);
    return info ? "offer " + info->version.toStdString() : "nothing";
}

/// Checks go through the module, as in the program.
class UpdateCheck : public ::testing::Test {
  protected:
    std::string checkAt(const QString& address, When when = When::always,
                        std::chrono::milliseconds longest = std::chrono::hours(1)) {
        UpdateChecker checker(address, settings, http, longest, [this] { return now; });
        std::string outcome;
        QEventLoop loop;
        checker.check(when, [&](const UpdateChecker::Result& result) {
            EXPECT_FALSE(checker.isRunning());
            outcome = told(result);
            loop.quit();
        });
        EXPECT_TRUE(checker.isRunning());
        EXPECT_EQ(outcome, "") << "a check tells from the event loop";
        loop.exec();
        return outcome;
    }
    /// At a server that gives this answer. "not asked" if it was left in peace.
    std::string check(const QByteArray& answer, When when = When::always, Then then = Then::close) {
        constexpr std::chrono::milliseconds soon(50);
        LoopbackServer server;
        server.answer({{answer, then}});
        const std::string outcome = checkAt(server.address(QStringLiteral("/updates.json")).toString(), when,
                                            then == Then::close ? std::chrono::hours(1) : soon);
        userAgent = server.headers("User-Agent");
        return server.requests() == 0 ? "not asked, " + outcome : outcome;
    }
    static QByteArray offering(const QByteArray& version, const QByteArray& more = {}) {
        return LoopbackServer::whole(manifest(version, more));
    }

    testing::MemorySettings settings;
    ModuleHTTP http;
    QDateTime now{QDate(2024, 3, 5), QTime(12, 0), Qt::UTC};
    std::string userAgent;
};

TEST_F(UpdateCheck, FindsWhatTheManifestOffers) {
    EXPECT_EQ(check(offering("99")), "offer 99");
    EXPECT_EQ(userAgent, "Quillon/" + appVersion().toStdString());
    EXPECT_EQ(check(offering(appVersion().toUtf8())), "nothing");
    EXPECT_EQ(check(offering("99", R"(, "minimumMacOSVersion": "999")")), "nothing");
    const QByteArray filled = manifest("99").leftJustified(1'000'000, ' ');
    EXPECT_EQ(check(LoopbackServer::whole(filled)), "offer 99");
}

TEST_F(UpdateCheck, TellsWhyThereIsNoManifestAndIsDueAgain) {
    const std::string late = "network: Der Server hat nicht rechtzeitig geantwortet.";
    EXPECT_EQ(check(LoopbackServer::whole(manifest("99"), "404 Not Found")), "invalidResponse: ");
    EXPECT_EQ(check(LoopbackServer::whole(manifest("99"), "304 Not Modified")).substr(0, 15),
              "invalidResponse");
    EXPECT_EQ(check(LoopbackServer::whole("<html>")).substr(0, 20), "decoding: Kein JSON,");
    EXPECT_EQ(check(LoopbackServer::whole(manifest("99") + QByteArray(1'000'000, ' '))),
              "network: Die Antwort ist zu lang.");
    EXPECT_EQ(check(LoopbackServer::reply("302 Found", "Location: http://127.0.0.1/\r\n", "")),
              "network: Der Server leitet auf eine Adresse ohne sichere Verbindung weiter.");
    EXPECT_EQ(check(LoopbackServer::reply("200 OK", "Content-Length: 9\r\n", "{"), When::always, Then::hang),
              late);
    EXPECT_EQ(check("", When::always, Then::hang), late);
    for (const char* const address : {"", "updates.json", "file:///etc/passwd", "https://", "http://a b/"}) {
        EXPECT_EQ(checkAt(QString::fromLatin1(address)), "invalidResponse: ") << address;
    }
    EXPECT_FALSE(settings.value(setting::lastUpdateCheck).isValid());
}

TEST_F(UpdateCheck, IsDueADayAfterTheLastThatSucceeded) {
    EXPECT_EQ(check(offering("99"), When::ifDue), "offer 99");
    EXPECT_EQ(settings.moment(setting::lastUpdateCheck), now);
    now = now.addDays(1).addMSecs(-1);
    EXPECT_EQ(check(offering("99"), When::ifDue), "not asked, nothing");
    EXPECT_EQ(check(offering("0"), When::always), "nothing");
    EXPECT_EQ(settings.moment(setting::lastUpdateCheck), now);
    now = now.addDays(1);
    EXPECT_EQ(check(offering("99"), When::ifDue), "offer 99");
    settings.setValue(setting::lastUpdateCheck, now.toString(Qt::ISODate));
    EXPECT_EQ(check(offering("99"), When::ifDue), "offer 99") << "no date";
}

TEST_F(UpdateCheck, LeavesOutWhatTheUserSkipped) {
    settings.setValue(setting::skippedUpdate, QStringLiteral("99"));
    EXPECT_EQ(check(offering("99")), "nothing");
    EXPECT_EQ(check(offering("99.1")), "offer 99.1");
    EXPECT_EQ(check(offering("99", R"(, "critical": true)")), "offer 99");
    settings.setValue(setting::skippedUpdate, 99);
    EXPECT_EQ(check(offering("99")), "offer 99") << "no text";
}

TEST_F(UpdateCheck, TakesThePlaceOfOneThatRuns) {
    testing::HeldHTTP held;
    UpdateChecker checker(QStringLiteral("https://a.example/updates.json"), settings, held);
    std::string outcomes;
    const auto note = [&](const UpdateChecker::Result& result) { outcomes += told(result) + ";"; };
    checker.check(When::always, note);
    const auto first = held.last;
    checker.check(When::always, note);
    EXPECT_FALSE(first) << "given up";
    held.answer(manifest("99"));
    EXPECT_EQ(outcomes, "offer 99;");
}

}  // namespace
}  // namespace quillon
