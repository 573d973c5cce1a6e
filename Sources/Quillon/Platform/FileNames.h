// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quillon {

/// `path` from the root on. Nothing stays nothing. Every name is that of a file: Qt's own functions take one
/// with a colon in front for something inside the program. "." and ".." stay for the system to follow: behind
/// a link to a folder, ".." leads elsewhere than the text says.
QString absolutePath(const QString& path);

/// The folder in which the file lies, as the system finds it: without links, "." and "..". Empty if there is
/// no such folder.
QString folderOf(const QString& path);

/// What stands behind the last full stop of the file's name: "adi" for "log.adi". Empty for a name that only
/// begins with one, and where blanks stand behind it ("Mr. Smith").
QString extensionOf(const QString& path);

/// The file's name without its folder, its extension and the full stop before it.
QString nameWithoutExtension(const QString& path);

}  // namespace quillon
