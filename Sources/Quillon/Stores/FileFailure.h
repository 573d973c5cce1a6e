// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <string>

namespace quillon {

/// What the user is told when a file could not be read or written: `what` failed, on a line of its own, then
/// the name of the file at `path` and `why`, with signs for what would act unseen.
QString fileFailure(const QString& what, const QString& path, const std::string& why);

}  // namespace quillon
