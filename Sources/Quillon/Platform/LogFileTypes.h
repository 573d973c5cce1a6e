// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/Panels.h"

#include <QList>

namespace quillon {

/// The kinds of files that the panels offer where a log is opened or saved: one for each extension, plain
/// text last.
const QList<FileType>& adifContentTypes();

}  // namespace quillon
