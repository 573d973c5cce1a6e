// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/Browser.h"

namespace quillon {

/// The one that the desktop opens for an address.
class DesktopBrowser : public Browser {
  public:
    bool open(const QUrl& address) override;
};

}  // namespace quillon
