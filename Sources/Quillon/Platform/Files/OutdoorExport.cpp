// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/Files/OutdoorExport.h"

#include "Quillon/Platform/Files/UniqueNames.h"
#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/Text.h"

#include <cstddef>
#include <string_view>

namespace quillon {

namespace {

/// Whether there is a line break or another control character, of ASCII or beyond.
bool hasControls(std::string_view name) {
    for (std::size_t at = 0; at < name.size(); ++at) {
        const auto byte = static_cast<unsigned char>(name[at]);
        const auto next = static_cast<unsigned char>(at + 1 < name.size() ? name[at + 1] : 0);
        // U+0080 to U+009F, the next line among them, stand behind 0xC2.
        if (byte < 0x20 || byte == 0x7F || (byte == 0xC2 && next < 0xA0)) {
            return true;
        }
    }
    constexpr std::string_view lineSeparator = "\u2028";
    constexpr std::string_view paragraphSeparator = "\u2029";
    return name.find(lineSeparator) != std::string_view::npos ||
           name.find(paragraphSeparator) != std::string_view::npos;
}

/// Whether the name is that of a file right in its folder, on one line.
bool isFileName(std::string_view name) {
    return name.find('/') == std::string_view::npos && !tallyrig::text::contains(name, "..") &&
           !hasControls(name);
}

/// Without a folder it is only asked whether the file could have its name.
std::optional<FileError> write(const tallyrig::OutdoorExportFile& file,
                               const std::optional<std::string>& folder) {
    auto error = isFileName(file.filename)
                     ? std::nullopt
                     : std::optional(FileError{
                           "Der Name einer Datei darf weder „/“ noch „..“ noch Steuerzeichen enthalten."});
    if (!error && folder) {
        error = replaceFile(*folder + '/' + file.filename, file.content, Lasting::later);
    }
    if (!error) {
        return std::nullopt;
    }
    constexpr std::size_t longestShown = 200;
    const std::string_view shown = tallyrig::text::beginning(file.filename, longestShown);
    return FileError{"„" + std::string(shown) + (shown.size() < file.filename.size() ? "…" : "") +
                     "“: " + error->message};
}

}  // namespace

std::optional<FileError> exportOutdoorFiles(
    const tallyrig::OutdoorExportFiles& files, const std::optional<std::string>& folder,
    const std::function<void(const tallyrig::OutdoorExportFile&)>& visit) {
    UniqueNames names;
    std::optional<FileError> failure;
    for (std::size_t index = 0; index < files.size() && !failure; ++index) {
        tallyrig::OutdoorExportFile file = files[index];
        const std::size_t stop = file.filename.rfind('.');
        file.filename = names.next(file.filename.substr(0, stop), file.filename.substr(stop));
        failure = write(file, folder);
        if (!failure) {
            visit(file);
        }
    }
    const auto notSafe = folder ? makeLast(*folder) : std::nullopt;
    return failure ? failure : notSafe;
}

}  // namespace quillon
