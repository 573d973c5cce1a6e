#pragma once

#include <string>
#include <string_view>

namespace tallyrig::tool {

/// Appends `text`, well-formed UTF-8, to `json` as a JSON string: quoted, letters as they are. For documents
/// so large that they are written piece by piece and never stand in memory as values.
void appendJson(std::string& json, std::string_view text);

}  // namespace tallyrig::tool
