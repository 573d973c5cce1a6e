// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/Browser.h"
#include "Quillon/Platform/HTTP/HTTP.h"

#include <QPointer>
#include <QStringList>

#include <memory>

namespace quillon::testing {

/// A manifest that offers `version`; `more` are further keys behind a comma.
inline QByteArray manifest(const QByteArray& version, const QByteArray& more = {}) {
    return R"({"releaseDate": "2024-03-05", "downloadUrl": "https://a.example/q.tar.xz", "version": ")" +
           version + '"' + more + '}';
}

/// A server of which the test decides when it answers what.
class HeldHTTP : public HTTPClient {
  public:
    std::unique_ptr<HTTPTransfer> streamGet(const HTTPRequest& asked) override {
        ++transfers;
        request = asked;
        auto transfer = std::make_unique<HTTPTransfer>();
        last = transfer.get();
        return transfer;
    }

    void answer(const QByteArray& body, int status = 200) {
        emit last->responded({status, body.size(), {}});
        emit last->received(body);
        emit last->ended();
    }
    void fail(const char* why) { emit last->failed({HTTPFailure::Kind::network, QString::fromUtf8(why)}); }

    int transfers = 0;            ///< Begun so far.
    HTTPRequest request;          ///< The last.
    QPointer<HTTPTransfer> last;  ///< Null once it was given up.
};

/// A browser that notes what it is asked for.
class NotingBrowser : public Browser {
  public:
    bool open(const QUrl& address) override {
        opened.append(address.toString(QUrl::FullyEncoded));
        return isThere;
    }

    QStringList opened;
    bool isThere = true;
};

}  // namespace quillon::testing
