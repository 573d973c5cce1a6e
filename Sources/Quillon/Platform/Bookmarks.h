// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quillon {

/// A file in a list of those that the programs of the desktop used last (XBEL with the elements of the
/// Desktop Bookmark specification). UTF-8.
struct Bookmark {
    std::string address;  ///< As a URL, such as "file:///home/a/log.adi".
    std::string type;     ///< The media type.
    std::string program;  ///< The name of the program that used it.
    std::string command;  ///< How that opens the file, with "%f" for it.
    std::string time;     ///< When it was used, such as "2024-02-29T12:30:00Z".
};

/// The list `xbel` with this file as one that was just used, once more if it is in it already. Empty text is
/// a list of nothing. Everything else stays in it byte for byte, also what is unknown here. Absent if `xbel`
/// is no such list.
std::optional<std::string> withBookmark(std::string_view xbel, const Bookmark& bookmark);

}  // namespace quillon
