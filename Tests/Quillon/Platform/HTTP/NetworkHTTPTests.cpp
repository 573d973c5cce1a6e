// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/HTTP/Network/NetworkHTTP.h"

#include "Quillon/Platform/HTTP/HTTPAnswer.h"
#include "Quillon/Support/LoopbackServer.h"

#include <gtest/gtest.h>

#include <QEventLoop>

#include <optional>
#include <string>

namespace quillon {
namespace {

using testing::LoopbackServer;
using Then = LoopbackServer::Then;

class Transfer : public ::testing::Test {
  protected:
    /// What came, as "STATUS/EXPECTED:BODY|END".
    std::string get(const HTTPRequest& request) {
        std::string told;
        QEventLoop loop;
        const auto transfer = http.streamGet(request);
        QObject::connect(transfer.get(), &HTTPTransfer::responded, [&](const HTTPResponse& response) {
            told += std::to_string(response.status) + '/' + std::to_string(response.expectedLength) + ':';
        });
        QObject::connect(transfer.get(), &HTTPTransfer::received,
                         [&](const QByteArray& block) { told += block.toStdString(); });
        QObject::connect(transfer.get(), &HTTPTransfer::ended, &loop, [&] {
            told += "|ended";
            loop.quit();
        });
        QObject::connect(transfer.get(), &HTTPTransfer::failed, &loop, [&](const HTTPFailure& failure) {
            told += failure.kind == HTTPFailure::Kind::refused ? "|refused: " : "|network: ";
            told += failure.description.toStdString();
            loop.quit();
        });
        loop.exec();
        return told;
    }
    std::string get(const QByteArray& answer, Then then = Then::close) {
        LoopbackServer server;
        server.answer({{answer, then}});
        constexpr std::chrono::milliseconds soon(50);
        return get({server.address(QStringLiteral("/a")), {}, then == Then::hang ? soon : hour, 10});
    }

    static constexpr std::chrono::hours hour{1};
    NetworkHTTP http;
};

TEST_F(Transfer, TellsHeadAndBodyAsTheyStandOnTheServer) {
    EXPECT_EQ(get(LoopbackServer::whole("abc")), "200/3:abc|ended");
    EXPECT_EQ(get(LoopbackServer::reply("200 OK", "", "abc")), "200/-1:abc|ended");
    EXPECT_EQ(get(LoopbackServer::whole("gone", "404 Not Found")), "404/4:gone|ended");
    EXPECT_EQ(get(LoopbackServer::reply("404 Not Found", "Content-Length: 9\r\n", "cut")), "404/9:cut|ended");
    EXPECT_EQ(get(LoopbackServer::reply("200 OK", "Content-Encoding: gzip\r\n", "abc")), "200/-1:abc|ended")
        << "nothing is unpacked on the way";
}

TEST_F(Transfer, TellsWhatTheTransportBroke) {
    const std::string cut = "|network: Der Server hat die Verbindung getrennt.";
    for (int time = 0; time < 20; ++time) {
        EXPECT_EQ(get(LoopbackServer::reply("200 OK", "Content-Length: 5\r\n", "abc")), "200/5:abc" + cut)
            << "Qt notices that only if it comes at the right moment";
    }
    EXPECT_EQ(get(QByteArray("")), cut);
    const std::string late = "|network: Der Server hat nicht rechtzeitig geantwortet.";
    EXPECT_EQ(get(QByteArray("HTTP/1.1 200"), Then::hang), late);
    EXPECT_EQ(get(LoopbackServer::reply("200 OK", "Content-Length: 5\r\n", "abc"), Then::hang),
              "200/5:abc" + late);
    std::optional<LoopbackServer> server(std::in_place);
    const QUrl address = server->address(QStringLiteral("/a"));
    server.reset();
    EXPECT_EQ(get({address, {}, hour, 10}), "|network: Der Server nimmt keine Verbindung an.");
}

TEST_F(Transfer, GoesToNoAddressButThoseOfTheWebAndIsSentToSafeOnesAlone) {
    for (const char* address :
         {"file:///etc/passwd", "data:,abc", "ftp://127.0.0.1/a", "http:///a", "", "qrc:/a"}) {
        EXPECT_EQ(get({QUrl(QString::fromLatin1(address)), {}, hour, 10}),
                  "|refused: Die Adresse ist keine des Webs.")
            << address;
    }
    for (const char* location : {"/b", "http://127.0.0.1/b", "file:///etc/passwd", "https:///b"}) {
        EXPECT_EQ(get(LoopbackServer::reply("302 Found", QByteArray("Location: ") + location + "\r\n", "x")),
                  "|refused: Der Server leitet auf eine Adresse ohne sichere Verbindung weiter.")
            << location;
    }
    LoopbackServer server;
    server.answer(
        {{LoopbackServer::reply("307 Temporary Redirect", "Location: https://127.0.0.1:1/b\r\n", "")}});
    EXPECT_EQ(get({server.address(QStringLiteral("/a")), {}, hour, 10}),
              "|network: Der Server nimmt keine Verbindung an.")
        << "it was followed";
    EXPECT_EQ(get({server.address(QStringLiteral("/a")), {}, hour, 0}),
              "|refused: Der Server leitet zu oft weiter.");
}

TEST_F(Transfer, SendsItsHeadersAndKeepsNothingOfEarlierOnes) {
    LoopbackServer server;
    server.answer(
        {{LoopbackServer::reply(
              "200 OK", "Set-Cookie: a=b\r\nCache-Control: max-age=999\r\nContent-Length: 1\r\n", "x"),
          Then::close, "bytes=5-"},
         {LoopbackServer::whole("y"), Then::close, "bytes=6-"}});
    const QUrl address = server.address(QStringLiteral("/a"));
    EXPECT_EQ(get({address, {{"Range", "bytes=5-"}}, hour, 10}), "200/1:x|ended");
    EXPECT_EQ(get({address, {{"Range", "bytes=6-"}}, hour, 10}), "200/1:y|ended");
    EXPECT_EQ(server.headers("Range"), "bytes=5- bytes=6-");
    EXPECT_EQ(server.headers("Cookie"), "-");
}

TEST_F(Transfer, IsGatheredUpToALimit) {
    const auto gather = [&](const QByteArray& bytes, Then then) {
        LoopbackServer server;
        server.answer({{bytes, then}});
        QEventLoop loop;
        std::string told;
        std::optional<HTTPGathering> gathering;
        gathering.emplace(http, HTTPRequest{server.address(QStringLiteral("/a")), {}, hour, 10}, 5,
                          [&](const HTTPGathering::Result& result) {
                              const auto* const answer = std::get_if<HTTPAnswer>(&result);
                              told = answer != nullptr
                                         ? answer->body.toStdString()
                                         : std::get<HTTPFailure>(result).description.toStdString();
                              gathering.reset();
                              loop.quit();
                          });
        loop.exec();
        return told;
    };
    EXPECT_EQ(gather(LoopbackServer::whole("12345"), Then::close), "12345");
    EXPECT_EQ(gather(LoopbackServer::reply("200 OK", "Content-Length: 6\r\n", ""), Then::hang),
              "Die Antwort ist zu lang.");
    EXPECT_EQ(gather(LoopbackServer::reply("200 OK", "", "123456"), Then::endless),
              "Die Antwort ist zu lang.");
    EXPECT_EQ(gather(LoopbackServer::reply("200 OK", "Content-Length: 4\r\n", "123"), Then::close),
              "Der Server hat die Verbindung getrennt.");
}

}  // namespace
}  // namespace quillon
