// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/HTTP/ModuleHTTP.h"

#include "Quillon/Platform/Modules.h"

#include <QTimer>

namespace quillon {

namespace {

std::unique_ptr<HTTPTransfer> failingTransfer() {
    auto transfer = std::make_unique<HTTPTransfer>();
    QTimer::singleShot(0, transfer.get(), [sender = transfer.get()] {
        emit sender->failed({HTTPFailure::Kind::refused,
                             QStringLiteral("Das Modul für das Netz fehlt oder passt nicht zum Programm.")});
    });
    return transfer;
}

}  // namespace

std::unique_ptr<HTTPTransfer> ModuleHTTP::streamGet(const HTTPRequest& request) {
    auto* const client = qobject_cast<HTTPClient*>(moduleRoot(QStringLiteral("QuillonNetwork")));
    return client != nullptr ? client->streamGet(request) : failingTransfer();
}

}  // namespace quillon
