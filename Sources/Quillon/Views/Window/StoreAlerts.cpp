// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Window/StoreAlerts.h"

#include "Quillon/Stores/AppStores.h"
#include "Quillon/Stores/CompareStore.h"
#include "Quillon/Stores/CrossCheckStore.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/ErrorAlert.h"

namespace quillon {

namespace {

/// For a store with a message of this kind.
template <typename Store>
void alertOfErrors(Store& store, QWidget& window) {
    auto* alert = new ErrorAlert(
        QStringLiteral("Fehler"), [&store] { return store.errorMessage(); },
        [&store] { store.setErrorMessage(std::nullopt); }, window);
    QObject::connect(&store, &Store::errorMessageChanged, alert, &ErrorAlert::refresh);
}

}  // namespace

void alertOfFailures(const AppStores& stores, QWidget& window) {
    alertOfErrors(stores.log, window);
    alertOfErrors(stores.compare, window);
    CrossCheckStore& cross = stores.crossCheck;
    auto* failedExport = new ErrorAlert(
        QStringLiteral("Export fehlgeschlagen"),
        [&cross] { return cross.hasExportFailed() ? cross.exportMessage() : std::nullopt; },
        [&cross] { cross.clearExportMessage(); }, window);
    QObject::connect(&cross, &CrossCheckStore::exportMessageChanged, failedExport, &ErrorAlert::refresh);
}

}  // namespace quillon
