// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/HTTP/Network/NetworkHTTP.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QPointer>
#include <QTimer>

#include <utility>

namespace quillon {

namespace {

/// In German, for Qt's own words are partly English and name addresses.
QString sentence(QNetworkReply::NetworkError error) {
    switch (error) {
        case QNetworkReply::HostNotFoundError:
            return QStringLiteral("Der Server wurde nicht gefunden.");
        case QNetworkReply::ConnectionRefusedError:
            return QStringLiteral("Der Server nimmt keine Verbindung an.");
        case QNetworkReply::RemoteHostClosedError:
            return QStringLiteral("Der Server hat die Verbindung getrennt.");
        case QNetworkReply::TimeoutError:
        case QNetworkReply::OperationCanceledError:
            return QStringLiteral("Der Server hat nicht rechtzeitig geantwortet.");
        case QNetworkReply::SslHandshakeFailedError:
            return QStringLiteral("Eine sichere Verbindung zum Server kam nicht zustande.");
        case QNetworkReply::TemporaryNetworkFailureError:
        case QNetworkReply::NetworkSessionFailedError:
            return QStringLiteral("Es gibt keine Verbindung zum Netz.");
        case QNetworkReply::ProxyConnectionRefusedError:
        case QNetworkReply::ProxyConnectionClosedError:
        case QNetworkReply::ProxyNotFoundError:
        case QNetworkReply::ProxyTimeoutError:
        case QNetworkReply::ProxyAuthenticationRequiredError:
            return QStringLiteral("Der Proxy-Server stellt keine Verbindung her.");
        default:
            return QStringLiteral("Die Verbindung ist gestört (Fehler %1).").arg(static_cast<int>(error));
    }
}

bool isRedirect(int status) {
    return status == 301 || status == 302 || status == 303 || status == 307 || status == 308;
}

class NetworkTransfer : public HTTPTransfer {
  public:
    explicit NetworkTransfer(HTTPRequest wanted) : request(std::move(wanted)) {
        if (isOnTheWeb(request.address)) {
            get(request.address);
        } else {
            refuse(QStringLiteral("Die Adresse ist keine des Webs."));
        }
    }

  private:
    void get(const QUrl& address) {
        QNetworkRequest asked(address);
        // Redirects are followed here, for Qt cannot be told to follow none but those to https.
        asked.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
        asked.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
        asked.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
        asked.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
        asked.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
        asked.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
        asked.setRawHeader("Accept-Encoding", "identity");
        for (const auto& [name, value] : std::as_const(request.headers)) {
            asked.setRawHeader(name, value);
        }
        asked.setTransferTimeout(static_cast<int>(request.timeout.count()));

        reply.reset();
        reply.reset(manager.get(asked));
        constexpr qint64 mostBytesWaiting = 1 << 20;
        reply->setReadBufferSize(mostBytesWaiting);
        take(&QNetworkReply::metaDataChanged, &NetworkTransfer::takeHead);
        take(&QNetworkReply::readyRead, &NetworkTransfer::takeBody);
        take(&QNetworkReply::finished, &NetworkTransfer::takeEnd);
    }

    /// Queued, so that the reply may be destroyed by who is told.
    void take(void (QNetworkReply::*signal)(), void (NetworkTransfer::*part)()) {
        connect(
            reply.get(), signal, this,
            [this, part, asked = redirects] {
                // What was queued for an earlier reply comes even when that is gone.
                if (reply && asked == redirects) {
                    (this->*part)();
                }
            },
            Qt::QueuedConnection);
    }

    int status() const { return reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt(); }

    void takeHead() {
        if (hasResponded || status() == 0) {
            return;
        }
        if (isRedirect(status()) && reply->hasRawHeader("Location")) {
            follow();
            return;
        }
        hasResponded = true;
        bool isNumber = false;
        const qint64 length = reply->header(QNetworkRequest::ContentLengthHeader).toLongLong(&isNumber);
        expected = isNumber ? length : -1;
        emit responded({status(), expected, reply->url()});
    }

    void follow() {
        const QByteArray location = reply->rawHeader("Location");
        const QUrl next = reply->url().resolved(QUrl::fromEncoded(location));
        if (++redirects > request.mostRedirects) {
            refuse(QStringLiteral("Der Server leitet zu oft weiter."));
        } else if (next.scheme() != QLatin1String("https") || !isOnTheWeb(next)) {
            refuse(QStringLiteral("Der Server leitet auf eine Adresse ohne sichere Verbindung weiter."));
        } else {
            get(next);
        }
    }

    void takeBody() {
        // A reply that was given up is closed, and complains of being read.
        const bool isReadable = hasResponded && reply->isOpen();
        if (const QByteArray block = isReadable ? reply->readAll() : QByteArray(); !block.isEmpty()) {
            got += block.size();
            emit received(block);
        }
    }

    void takeEnd() {
        const QPointer<NetworkTransfer> self(this);
        const QPointer<QNetworkReply> ending(reply.get());
        takeHead();
        if (self && ending) {
            takeBody();
        }
        if (!self || !ending) {
            return;
        }
        QNetworkReply::NetworkError error = reply->error();
        // Depending on when it notices, Qt takes the end of the connection for that of the body. Where
        // nothing has changed the length is that of the body which is not sent.
        constexpr int notModified = 304;
        if (error == QNetworkReply::NoError && got < expected && status() != notModified) {
            error = QNetworkReply::RemoteHostClosedError;
        }
        // A status from 400 on is an error to Qt, whether or not its page came whole.
        constexpr int firstErrorStatus = 400;
        const bool isWhole =
            hasResponded && (error == QNetworkReply::NoError || status() >= firstErrorStatus);
        reply.reset();
        if (isWhole) {
            emit ended();
        } else {
            emit failed({HTTPFailure::Kind::network, sentence(error)});
        }
    }

    void refuse(const QString& why) {
        reply.reset();
        QTimer::singleShot(0, this, [this, why] { emit failed({HTTPFailure::Kind::refused, why}); });
    }

    const HTTPRequest request;
    QNetworkAccessManager manager;
    std::unique_ptr<QNetworkReply> reply;
    int redirects = 0;  ///< Followed so far; tells the replies apart.
    bool hasResponded = false;
    qint64 expected = -1;
    qint64 got = 0;
};

}  // namespace

std::unique_ptr<HTTPTransfer> NetworkHTTP::streamGet(const HTTPRequest& request) {
    return std::make_unique<NetworkTransfer>(request);
}

}  // namespace quillon
