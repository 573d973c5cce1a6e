#include "Quillon/Views/Window/StoreAlerts.h"

#include "Quillon/Stores/CrossCheckStore.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/ErrorAlert.h"

namespace quillon {

void alertOfFailures(LogStore& log, CrossCheckStore& cross, QWidget& window) {
    auto* failure = new ErrorAlert(
        QStringLiteral("Fehler"), [&log] { return log.errorMessage(); },
        [&log] { log.setErrorMessage(std::nullopt); }, window);
    QObject::connect(&log, &LogStore::errorMessageChanged, failure, &ErrorAlert::refresh);
    auto* failedExport = new ErrorAlert(
        QStringLiteral("Export fehlgeschlagen"),
        [&cross] { return cross.hasExportFailed() ? cross.exportMessage() : std::nullopt; },
        [&cross] { cross.clearExportMessage(); }, window);
    QObject::connect(&cross, &CrossCheckStore::exportMessageChanged, failedExport, &ErrorAlert::refresh);
}

}  // namespace quillon
