// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tallyrig::tool {

using TableRow = std::vector<std::string>;

/// Lines of columns, each as wide as its widest text of at most 40 characters; the last one is not filled up.
/// `sides` has an "r" for each column whose texts stand on the right of their place; all others, and those
/// beyond it, stand on the left.
std::string textTable(const std::vector<TableRow>& rows, std::string_view sides);

}  // namespace tallyrig::tool
