// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/HTTP/HTTP.h"

namespace quillon {

/// Transfers by Qt. Each has a session of its own, without cookies and without a cache, that is closed with
/// it. Bodies are taken as they are on the server: compressed transfers, of which no part could be asked for
/// again, are not accepted.
class NetworkHTTP : public HTTPClient {
  public:
    std::unique_ptr<HTTPTransfer> streamGet(const HTTPRequest& request) override;
};

}  // namespace quillon
