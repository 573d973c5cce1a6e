// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

namespace quillon {

struct AppStores;

/// Shows what has failed in the stores over `window`, each in an alert of its own. All outlive the alerts.
void alertOfFailures(const AppStores& stores, QWidget& window);

}  // namespace quillon
