// SPDX-License-Identifier: GPL-3.0-or-later
#include "TallyrigTool/JsonText.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace tallyrig::tool {

namespace {

/// Printable ASCII that stands for itself between quotation marks.
bool isPlain(char c) {
    return c >= ' ' && c <= '~' && c != '"' && c != '\\';
}

}  // namespace

void appendJson(std::string& json, std::string_view text) {
    if (std::ranges::all_of(text, isPlain)) {
        json += '"';
        json += text;
        json += '"';
    } else {
        json += nlohmann::json(text).dump();
    }
}

}  // namespace tallyrig::tool
