#pragma once

class QWidget;

namespace quillon {

class CrossCheckStore;
class LogStore;

/// Shows what has failed in the stores over `window`, each in an alert of its own. All outlive the alerts.
void alertOfFailures(LogStore& log, CrossCheckStore& cross, QWidget& window);

}  // namespace quillon
