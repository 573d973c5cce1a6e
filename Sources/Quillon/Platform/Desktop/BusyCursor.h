// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quillon {

/// Shows the cursor that asks for patience, until control is back in the event loop. To be called in front of
/// work on the main thread that may take long; calls within one turn of the loop count as one.
void showBusyCursorUntilIdle();

}  // namespace quillon
