#include "Quillon/Platform/Files/OutdoorExport.h"

#include "Quillon/Platform/Files/UniqueNames.h"
#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/Text.h"

#include <cstddef>
#include <string_view>

namespace quillon {

namespace {

/// Whether the name is that of a file right in its folder, on one line.
bool isFileName(std::string_view name) {
    return name.find_first_of(std::string_view("/\0\n\r", 4)) == std::string_view::npos &&
           !tallyrig::text::contains(name, "..");
}

std::optional<FileError> write(const tallyrig::OutdoorExportFile& file, const std::string& folder) {
    const auto error =
        isFileName(file.filename)
            ? replaceFile(folder + '/' + file.filename, file.content, Lasting::later)
            : FileError{"Der Name einer Datei darf weder „/“ noch „..“ noch einen Zeilenumbruch enthalten."};
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
        failure = folder ? write(file, *folder) : std::nullopt;
        if (!failure) {
            visit(file);
        }
    }
    const auto notSafe = folder ? makeLast(*folder) : std::nullopt;
    return failure ? failure : notSafe;
}

}  // namespace quillon
