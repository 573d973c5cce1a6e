// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/HTTP/HTTP.h"

namespace quillon {

/// The transfers of the module `QuillonNetwork`, which is loaded when the first one begins: it brings nine
/// libraries with it, and a program that looks for nothing on the web starts without them. Where there is no
/// such module, each transfer fails.
class ModuleHTTP : public HTTPClient {
  public:
    std::unique_ptr<HTTPTransfer> streamGet(const HTTPRequest& request) override;
};

}  // namespace quillon
