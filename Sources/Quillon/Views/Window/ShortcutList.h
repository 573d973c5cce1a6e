// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quillon {

/// A chapter for the handbook that lists the keys of all commands, Markdown. Its heading is "Tastenkürzel".
QString shortcutChapter();

}  // namespace quillon
