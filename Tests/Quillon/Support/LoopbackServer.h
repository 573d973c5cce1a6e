// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>

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

    /// The answers to the next requests, in turn. Who asks once more is hung up on.
    void answer(std::vector<Answer> next) { answers = std::move(next); }

    /// An answer with `headers`, each line ending in CR LF.
    static QByteArray reply(const char* status, const QByteArray& headers, const QByteArray& body) {
        return QByteArray("HTTP/1.1 ") + status + "\r\n" + headers + "\r\n" + body;
    }
    /// All of `body`, and its length.
    static QByteArray whole(const QByteArray& body, const char* status = "200 OK") {
        return reply(status, "Content-Length: " + QByteArray::number(body.size()) + "\r\n", body);
    }

    std::size_t requests() const { return asked.size(); }
    /// What stood behind the name of the header in a request, the first being 0; "-" if there was none.
    std::string header(std::size_t request, const QByteArray& name) const {
        for (const QByteArray& line : asked.at(request).split('\n')) {
            if (line.toLower().startsWith(name.toLower() + ':')) {
                return line.mid(name.size() + 1).trimmed().toStdString();
            }
        }
        return "-";
    }

  private:
    void take(QTcpSocket* socket) {
        if (!socket->peek(socket->bytesAvailable()).contains("\r\n\r\n")) {
            return;
        }
        asked.push_back(socket->readAll());
        if (asked.size() > answers.size()) {
            socket->abort();
            return;
        }
        const Answer& now = answers[asked.size() - 1];
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
