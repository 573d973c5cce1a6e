// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/HTTP/HTTPAnswer.h"

#include <utility>

namespace quillon {

HTTPGathering::HTTPGathering(HTTPClient& client, const HTTPRequest& request, qint64 mostBytes,
                             std::function<void(const Result&)> tell)
    : transfer(client.streamGet(request)), whenDone(std::move(tell)) {
    connect(transfer.get(), &HTTPTransfer::responded, this, [this, mostBytes](const HTTPResponse& response) {
        answer.response = response;
        if (response.expectedLength > mostBytes) {
            refuseLength();
        }
    });
    connect(transfer.get(), &HTTPTransfer::received, this, [this, mostBytes](const QByteArray& block) {
        if (block.size() > mostBytes - answer.body.size()) {
            refuseLength();
        } else {
            answer.body += block;
        }
    });
    connect(transfer.get(), &HTTPTransfer::ended, this, [this] { finish(std::move(answer)); });
    connect(transfer.get(), &HTTPTransfer::failed, this,
            [this](const HTTPFailure& failure) { finish(failure); });
}

void HTTPGathering::refuseLength() {
    finish(HTTPFailure{HTTPFailure::Kind::refused, QStringLiteral("Die Antwort ist zu lang.")});
}

void HTTPGathering::finish(const Result& result) {
    transfer.reset();
    // Who is told may destroy this object, and the function with it.
    const auto tell = std::exchange(whenDone, {});
    tell(result);
}

}  // namespace quillon
