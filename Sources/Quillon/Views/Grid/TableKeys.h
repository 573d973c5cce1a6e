// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Views/Grid/TableGeometry.h"

#include <QString>

#include <optional>

class QKeyEvent;

namespace quillon {

/// Where the key takes the current cell of a table; absent for a key that moves nothing.
std::optional<TableMove> moveFor(const QKeyEvent& event);

/// What the key writes into a cell; empty for a command and for a key without a letter.
QString typedText(const QKeyEvent& event);

}  // namespace quillon
