// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QPair>
#include <QString>
#include <QUrl>
#include <QtPlugin>

#include <chrono>
#include <memory>

namespace quillon {

/// Whether a server on the web can be asked for this: http or https, and a host.
bool isOnTheWeb(const QUrl& address);

/// What is asked of a server: one GET.
struct HTTPRequest {
    /// Refused if it is not on the web.
    QUrl address;
    QList<QPair<QByteArray, QByteArray>> headers;
    /// The transfer fails when nothing came for that long, be it before the answer or in its midst.
    std::chrono::milliseconds timeout = std::chrono::seconds(30);
    /// How often the server may send to another address. That is always one with https: nobody on the way
    /// can then say what is got instead.
    int mostRedirects = 10;
};

/// The head of an answer.
struct HTTPResponse {
    int status = 0;
    /// Bytes that the body will have; -1 if the server does not say.
    qint64 expectedLength = -1;
    /// Where it came from, after all redirects.
    QUrl address;

    bool isSuccess() const { return status >= 200 && status <= 299; }
};

/// Why there is no answer, or no whole one. A status such as 404 is an answer.
struct HTTPFailure {
    enum class Kind {
        network,  ///< The transport failed; another time it may not.
        refused,  ///< This side did not want it: the address, a redirect, more bytes than may be.
    };
    Kind kind = Kind::network;
    QString description;  ///< One German sentence.
};

/// One GET on its way. Everything is told from the event loop, in this order: `responded` once, `received`
/// any number of times, `ended`; `failed` may come at any point instead of what is still to come. Nothing
/// comes after `ended` and `failed`.
///
/// Lives on the thread that began it. Ends with the object, which may be destroyed in a slot.
class HTTPTransfer : public QObject {
    Q_OBJECT

  public:
    using QObject::QObject;

  signals:
    void responded(const quillon::HTTPResponse& response);
    /// The next bytes of the body as they stand on the server; never none.
    void received(const QByteArray& block);
    /// The body is whole, as far as the transport knows.
    void ended();
    void failed(const quillon::HTTPFailure& failure);
};

/// Who gets from servers. The real one is `NetworkHTTP`, which
/// the program has by way of `ModuleHTTP`; tests of what stands above answer by themselves.
class HTTPClient {
  public:
    HTTPClient() = default;
    HTTPClient(const HTTPClient&) = delete;
    HTTPClient& operator=(const HTTPClient&) = delete;
    virtual ~HTTPClient() = default;

    /// Begins a transfer of its own: nothing is taken from an earlier one, neither answers nor cookies.
    virtual std::unique_ptr<HTTPTransfer> streamGet(const HTTPRequest& request) = 0;
};

}  // namespace quillon

Q_DECLARE_INTERFACE(quillon::HTTPClient, "quillon.HTTPClient/1")
