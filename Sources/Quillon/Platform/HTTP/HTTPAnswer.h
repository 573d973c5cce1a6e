// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/HTTP/HTTP.h"

#include <functional>
#include <memory>
#include <variant>

namespace quillon {

/// A whole answer.
struct HTTPAnswer {
    HTTPResponse response;
    QByteArray body;
};

/// One small answer on its way into memory. Ends with the object, which may be destroyed by who is told.
class HTTPGathering : public QObject {
  public:
    using Result = std::variant<HTTPAnswer, HTTPFailure>;

    /// `tell` is called once, from the event loop. A body of more than `mostBytes` is refused as soon as that
    /// is known.
    HTTPGathering(HTTPClient& client, const HTTPRequest& request, qint64 mostBytes,
                  std::function<void(const Result&)> tell);

  private:
    void finish(const Result& result);
    void refuseLength();

    std::unique_ptr<HTTPTransfer> transfer;
    std::function<void(const Result&)> whenDone;
    HTTPAnswer answer;
};

}  // namespace quillon
