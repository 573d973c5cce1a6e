// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quillon {

/// Where the program may leave what is to be there at its next start, but is no setting and no document of
/// the user: in `XDG_STATE_HOME`, or where that stands if it is not set. Need not exist.
QString stateFolder();

}  // namespace quillon
