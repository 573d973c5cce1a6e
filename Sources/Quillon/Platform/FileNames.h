#pragma once

#include <QString>

namespace quillon {

/// `path` from the root on, without "." and "..". Nothing stays nothing. Every name is that of a file:
/// Qt's own functions take one with a colon in front for something inside the program.
QString absolutePath(const QString& path);

/// What stands behind the last full stop of the file's name: "adi" for "log.adi". Empty for a name that only
/// begins with one, and where blanks stand behind it ("Mr. Smith").
QString extensionOf(const QString& path);

/// The file's name without its folder, its extension and the full stop before it.
QString nameWithoutExtension(const QString& path);

}  // namespace quillon
