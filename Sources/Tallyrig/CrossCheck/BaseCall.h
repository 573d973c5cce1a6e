// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace tallyrig {

/// The core of a call with additions, trimmed and in upper case: "EA8/DL1XYZ/P" gives "DL1XYZ". Of the parts
/// between slashes the longest counts that holds a digit and a letter, or else the longest of all; of parts
/// of one length the first. A call of one part stays whole, slashes included.
std::string baseCall(std::string_view call);
/// The same without a copy where `call` is in upper case already: the result refers to `call` or to `buffer`.
std::string_view baseCall(std::string_view call, std::string& buffer);

}  // namespace tallyrig
