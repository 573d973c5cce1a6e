// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace quillon::testing {

/// A web server on this machine that says what it is told to, byte for byte.
class LoopbackServer {
  public:
    /// What happens to the connection after the answer.
    enum class Then { close, hang, endless };

    struct Answer {
        QByteArray bytes;
        Then then = Then::close;  ///< With `endless`, the answer's last kilobyte again and again.
        /// Of the request that it is for; "-" for one without.
        std::string range = "-";
    };

    LoopbackServer() {
        if (!server.listen(QHostAddress::LocalHost)) {
            qFatal("no server on loopback");
        }
        QObject::connect(&server, &QTcpServer::newConnection, &server, [this] {
            while (QTcpSocket* const socket = server.nextPendingConnection()) {
                QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] { take(socket); });
                QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
            }
        });
    }

    QUrl address(const QString& path) const {
        return QUrl(QStringLiteral("http://127.0.0.1:%1%2").arg(server.serverPort()).arg(path));
    }

    /// What is said to those who ask from now on, by the range that they ask for, however often they ask: Qt
    /// asks once more by itself when it is hung up on early. Who asks for another is hung up on.
    void answer(std::vector<Answer> next) {
        answers = std::move(next);
        asked.clear();
    }

    /// An answer with `headers`, each line ending in CR LF.
    static QByteArray reply(const char* status, const QByteArray& headers, const QByteArray& body) {
        return QByteArray("HTTP/1.1 ") + status + "\r\n" + headers + "\r\n" + body;
    }
    /// All of `body`, and its length.
    static QByteArray whole(const QByteArray& body, const char* status = "200 OK") {
        return reply(status, "Content-Length: " + QByteArray::number(body.size()) + "\r\n", body);
    }

    std::size_t requests() const { return asked.size(); }
    /// What stood behind the name of the header in the requests, "-" if there was none; with a blank between,
    /// and what is the same as in the request before left out.
    std::string headers(const QByteArray& name) const {
        std::string all;
        std::string last;
        for (const QByteArray& request : asked) {
            if (const std::string value = header(request, name); value != last) {
                all += (all.empty() ? "" : " ") + value;
                last = value;
            }
        }
        return all;
    }

  private:
    static std::string header(const QByteArray& request, const QByteArray& name) {
        for (const QByteArray& line : request.split('\n')) {
            if (line.toLower().startsWith(name.toLower() + ':')) {
                return line.mid(name.size() + 1).trimmed().toStdString();
            }
        }
        return "-";
    }

    void take(QTcpSocket* socket) {
        if (!socket->peek(socket->bytesAvailable()).contains("\r\n\r\n")) {
            return;
        }
        asked.push_back(socket->readAll());
        const auto wanted = std::find_if(answers.begin(), answers.end(), [this](const Answer& answer) {
            return answer.range == header(asked.back(), "Range");
        });
        if (wanted == answers.end()) {
            socket->abort();
            return;
        }
        const Answer& now = *wanted;
        socket->write(now.bytes);
        if (now.then == Then::close) {
            socket->disconnectFromHost();
        } else if (now.then == Then::endless) {
            constexpr qsizetype kilobyte = 1024;
            const QByteArray more = now.bytes.right(kilobyte);
            QObject::connect(socket, &QTcpSocket::bytesWritten, socket, [socket, more] {
                if (socket->bytesToWrite() < more.size()) {
                    socket->write(more);
                }
            });
        }
    }

    QTcpServer server;
    std::vector<Answer> answers;
    std::vector<QByteArray> asked;
};

}  // namespace quillon::testing
