// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QUrl>

namespace quillon {

/// The program with which the user looks at pages of the web.
class Browser {
  public:
    Browser() = default;
    Browser(const Browser&) = delete;
    Browser& operator=(const Browser&) = delete;
    virtual ~Browser() = default;

    /// Opens `address`, which is one of the web. Whether there is a program that takes it.
    virtual bool open(const QUrl& address) = 0;
};

}  // namespace quillon
