// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Updates/UpdateDownload.h"

#include "Quillon/Platform/HTTP/Network/NetworkHTTP.h"
#include "Quillon/Support/InstallStandIns.h"
#include "Quillon/Support/LoopbackServer.h"
#include "Quillon/Support/TemporaryFolder.h"
#include "Quillon/Support/UpdateStandIns.h"

#include <gtest/gtest.h>

#include <QEventLoop>
#include <QFile>

#include <sys/resource.h>

#include <csignal>
#include <optional>
#include <string>
#include <vector>

namespace quillon {
namespace {

using testing::LoopbackServer;
using Then = LoopbackServer::Then;

class Download : public ::testing::Test {
  protected:
    /// What is on the disk when all is there, or the error.
    std::string load(std::vector<LoopbackServer::Answer> answers, qint64 mostBytes = 1000) {
        platform.asked();
        server.emplace();
        server->answer(std::move(answers));
        QEventLoop loop;
        std::optional<UpdateDownload::Result> result;
        UpdateDownload download(http, platform, server->address(QStringLiteral("/r/q%20.tar.xz?a=b")),
                                {[&](double progress) { last = progress; },
                                 [&](const UpdateDownload::Result& told) {
                                     result = told;
                                     loop.quit();
                                 }},
                                mostBytes);
        download.start(folder.path(QStringLiteral("work")));
        if (!result) {
            loop.exec();
        }
        if (const auto* const error = std::get_if<InstallError>(&*result)) {
            return error->text.toStdString();
        }
        EXPECT_EQ(std::get<QString>(*result), folder.path(QStringLiteral("work/q .tar.xz")));
        return folder.read(QStringLiteral("work/q .tar.xz"));
    }
    /// The first `sent` of ten bytes that were said to come.
    static LoopbackServer::Answer cut(int sent) {
        return {
            LoopbackServer::reply("200 OK", "Content-Length: 10\r\n", QByteArray("0123456789").left(sent))};
    }
    /// `body`, said to have `length`, to who has `from` bytes.
    static LoopbackServer::Answer rest(int from, const char* body, int length) {
        const QByteArray lengthLine = "Content-Length: " + QByteArray::number(length) + "\r\n";
        return {LoopbackServer::reply("206 Partial Content", lengthLine, body), Then::close, range(from)};
    }
    static std::string range(int from) { return "bytes=" + std::to_string(from) + '-'; }

    NetworkHTTP http;
    testing::TemporaryFolder folder;
    testing::StandInPlatform platform{folder.path({})};
    std::optional<LoopbackServer> server;
    std::optional<double> last;
};

TEST_F(Download, GoesOnWhereItWasInterrupted) {
    EXPECT_EQ(load({cut(8), rest(8, "89", 2)}), "0123456789");
    EXPECT_EQ(server->headers("Range"), "- bytes=8-");
    EXPECT_EQ(platform.asked(), "remove work\nafter 1500\n");
    EXPECT_EQ(load({cut(3), rest(3, "34", 7), rest(5, "56789", 5)}), "0123456789");
    EXPECT_EQ(platform.asked(), "remove work\nafter 1500\nafter 1500\n");
}

TEST_F(Download, BeginsAnewWhereTheServerIgnoresTheRange) {
    EXPECT_EQ(load({cut(8), {LoopbackServer::whole("other"), Then::close, range(8)}}), "other");
    const QByteArray long20 = LoopbackServer::reply("200 OK", "Content-Length: 20\r\n", "x");
    EXPECT_EQ(load({cut(8), {long20, Then::close, range(8)}, rest(1, "y12345678", 9)}),
              "Download unvollständig — bitte erneut versuchen.")
        << "how much there is was taken anew";
}

TEST_F(Download, GivesUpAfterThreeTimesAndAtOnceForOtherReasons) {
    EXPECT_EQ(load({cut(5), rest(5, "5", 5), rest(6, "6", 4), rest(7, "789", 3)}),
              "Der Server hat die Verbindung getrennt.");
    EXPECT_EQ(server->headers("Range"), "- bytes=5- bytes=6-");
    EXPECT_EQ(platform.asked(), "remove work\nafter 1500\nafter 1500\n");
    EXPECT_EQ(load({cut(8), rest(8, "8", 1)}), "Download unvollständig — bitte erneut versuchen.");
    EXPECT_EQ(platform.asked(), "remove work\nafter 1500\n");
    EXPECT_EQ(load({{LoopbackServer::whole("no", "404 Not Found")}}), "Server antwortete mit HTTP 404");
    EXPECT_EQ(load({cut(8), {LoopbackServer::whole("", "416 Range Not Satisfiable"), Then::close, range(8)}}),
              "Server antwortete mit HTTP 416");
    platform.asked();
    EXPECT_EQ(load({{LoopbackServer::reply("302 Found", "Location: http://127.0.0.1/\r\n", "")}}),
              "Der Server leitet auf eine Adresse ohne sichere Verbindung weiter.");
    EXPECT_EQ(platform.asked(), "remove work\n");
}

TEST_F(Download, TakesWhatComesWhereNoLengthIsSaidButNotWithoutEnd) {
    EXPECT_EQ(load({{LoopbackServer::reply("200 OK", "", "abc")}}), "abc");
    EXPECT_EQ(last, -1);
    EXPECT_EQ(load({{LoopbackServer::reply("200 OK", "", "abc"), Then::endless}}),
              "Der Download ist größer, als eine Version sein kann.");
    EXPECT_EQ(load({cut(1)}, 9), "Der Download ist größer, als eine Version sein kann.") << "said in front";
    EXPECT_EQ(load({cut(10)}, 10), "0123456789");
}

TEST_F(Download, TellsOfAFullDisk) {
    const auto restore = std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit = {};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit small = {4, limit.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &small);
    EXPECT_EQ(load({cut(10)}), "Die Datei ist zu groß.");
    ::setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, restore);
}

TEST_F(Download, FollowsNoLinkAndWritesOverNothing) {
    const QString work = folder.path(QStringLiteral("work"));
    platform.failing = QStringList{QStringLiteral("remove")};
    QFile::link(folder.path(QStringLiteral("elsewhere")), work);
    EXPECT_EQ(load({cut(10)}), "Unter diesem Namen gibt es schon etwas.");
    EXPECT_EQ(folder.names(), "work");
}

TEST_F(Download, TellsItsProgressTenTimesASecond) {
    testing::HeldHTTP held;
    std::string told;
    UpdateDownload download(held, platform, QUrl(QStringLiteral("https://quillon.example/a")),
                            {[&](double progress) { told += std::to_string(progress).substr(0, 4) + ' '; },
                             [](const auto& /*result*/) {}});
    download.start(folder.path(QStringLiteral("work")));
    EXPECT_EQ(held.request.timeout, std::chrono::seconds(30));
    emit held.last->responded({200, 8, {}});
    for (const int millisecond : {1000, 1099, 1100, 1150, 1201, 5000}) {
        platform.time = std::chrono::milliseconds(millisecond);
        emit held.last->received("x");
    }
    EXPECT_EQ(told, "0.12 0.37 0.62 0.75 ");
}

TEST(DownloadedFile, IsCalledAsTheLastPartOfItsAddressIfThatIsAName) {
    const struct {
        const char* path;
        const char* name;
    } cases[] = {{"/r/Quillon-1.2.tar.xz", "Quillon-1.2.tar.xz"},
                 {"/r/a%20b", "a b"},
                 {"/r/", "update.tar.xz"},
                 {"", "update.tar.xz"},
                 {"/r/%2e%2e", "update.tar.xz"},
                 {"/r/..%2f..%2fx", "x"},
                 {"/r/a%2F..", "update.tar.xz"},
                 {"/r/a%00b", "update.tar.xz"},
                 {"/r/.", "update.tar.xz"}};
    for (const auto& [path, name] : cases) {
        EXPECT_EQ(
            UpdateDownload::fileName(QUrl(QLatin1String("https://quillon.example") + QLatin1String(path))),
            QLatin1String(name))
            << path;
    }
    EXPECT_EQ(UpdateDownload::fileName(QUrl("https://quillon.example/" + QString(300, QLatin1Char('n')))),
              QLatin1String("update.tar.xz"));
}

}  // namespace
}  // namespace quillon
