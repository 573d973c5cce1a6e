// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace tallyrig::tool {

/// Appends `text`, well-formed UTF-8, to `json` as a JSON string. For documents of millions of texts, where
/// a JSON value for each would take longer than reading the log; the result is that of the JSON library.
void appendJson(std::string& json, std::string_view text);

}  // namespace tallyrig::tool
