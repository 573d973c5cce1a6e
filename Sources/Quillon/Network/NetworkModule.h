// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/HTTP/Network/NetworkHTTP.h"

#include <QObject>

namespace quillon {

/// The root of the module: transfers by Qt Network.
class NetworkModule : public QObject, public NetworkHTTP {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "quillon.HTTPClient/1")
    Q_INTERFACES(quillon::HTTPClient)
};

}  // namespace quillon
