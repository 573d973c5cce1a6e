// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Formats/FileLooks.h"

#include "Tallyrig/Text/Decoding.h"
#include "Tallyrig/Text/Lines.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>

namespace tallyrig {

namespace {

using namespace std::string_view_literals;

struct Magic {
    std::string_view bytes;
    FileLook look;
};

/// What kinds of files begin with.
constexpr auto magics = std::to_array<Magic>({{"PK\3\4"sv, FileLook::zip},
                                              {"PK\5\6"sv, FileLook::zip},
                                              {"\x1F\x8B"sv, FileLook::compressed},
                                              {"BZh"sv, FileLook::compressed},
                                              {"\xFD\x37zXZ\0"sv, FileLook::compressed},
                                              {"7z\xBC\xAF"sv, FileLook::compressed},
                                              {"Rar!\x1A"sv, FileLook::compressed},
                                              {"\x28\xB5\x2F\xFD"sv, FileLook::compressed},
                                              {"%PDF"sv, FileLook::pdf},
                                              {"\x89PNG"sv, FileLook::picture},
                                              {"\xFF\xD8\xFF"sv, FileLook::picture},
                                              {"GIF8"sv, FileLook::picture},
                                              {"II*\0"sv, FileLook::picture},
                                              {"MM\0*"sv, FileLook::picture},
                                              {"SQLite format 3\0"sv, FileLook::database},
                                              {"\0\1\0\0Standard "sv, FileLook::database},
                                              {"\x7F"
                                               "ELF"sv,
                                               FileLook::program},
                                              {"MZ\x90\0"sv, FileLook::program},
                                              {"{\\rtf"sv, FileLook::richText}});

/// Whether every second byte is NUL, nearly, as in ASCII text in UTF-16.
bool isUTF16WithoutMark(std::string_view head) {
    std::array<std::size_t, 2> counts{};
    for (std::size_t at = 0; at < head.size(); ++at) {
        counts[at % 2] += head[at] == '\0' ? 1 : 0;
    }
    const std::size_t most = head.size() / 2;
    return head.size() >= 4 && std::max(counts[0], counts[1]) * 10 >= most * 9 &&
           std::min(counts[0], counts[1]) * 10 <= most;
}

/// Whether the first lines have columns, three at least.
bool isTable(std::string_view text) {
    const std::string_view first = text::takeLine(text);
    const std::string_view second = text::takeLine(text);
    return std::ranges::any_of(",;\t"sv, [&](char separator) {
        return std::ranges::count(first, separator) >= 2 && std::ranges::count(second, separator) >= 2;
    });
}

bool isText(std::string_view head) {
    return std::ranges::none_of(head, [](char c) {
        return static_cast<unsigned char>(c) < ' ' && (c < '\t' || c > '\r') && c != '\x1A';
    });
}

/// Whether a line begins as a QSO of Cabrillo does.
bool hasQSOLine(std::string_view text) {
    for (std::string_view line = text::takeLine(text); !line.empty(); line = text::takeLine(text)) {
        if (text::trimmedOfBlanks(line).starts_with("QSO:")) {
            return true;
        }
    }
    return false;
}

}  // namespace

FileLook lookOf(std::string_view bytes) {
    for (const Magic& magic : magics) {
        if (bytes.starts_with(magic.bytes)) {
            return magic.look;
        }
    }
    const std::string_view head = bytes.substr(0, 4096);
    if (isUTF16WithoutMark(head)) {
        return FileLook::utf16WithoutMark;
    }
    if (!isText(head)) {
        return FileLook::unknown;
    }
    const std::string text = text::upper(text::repaired(head));
    const std::string_view content = text::trimmed(text);
    if (text::contains(content, "<!DOCTYPE HTML") || text::contains(content, "<HTML")) {
        return FileLook::webPage;
    }
    if (content.starts_with("<?XML")) {
        return FileLook::xml;
    }
    if ((content.starts_with('{') || content.starts_with('[')) &&
        content.find('"') != std::string_view::npos) {
        return FileLook::json;
    }
    if (hasQSOLine(content)) {
        return FileLook::cabrilloWithoutStart;
    }
    return isTable(content) ? FileLook::table : FileLook::text;
}

}  // namespace tallyrig
