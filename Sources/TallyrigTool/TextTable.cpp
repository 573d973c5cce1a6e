// SPDX-License-Identifier: GPL-3.0-or-later
#include "TallyrigTool/TextTable.h"

#include "Tallyrig/Text/Characters.h"

#include <algorithm>
#include <cstddef>

namespace tallyrig::tool {

std::string textTable(const std::vector<TableRow>& rows, std::string_view sides) {
    constexpr std::size_t widest = 40;
    std::vector<std::size_t> widths;
    for (const TableRow& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t column = 0; column < row.size(); ++column) {
            widths[column] = std::max(widths[column], std::min(text::characterCount(row[column]), widest));
        }
    }
    std::string lines;
    for (const TableRow& row : rows) {
        for (std::size_t column = 0; column < row.size(); ++column) {
            const std::size_t length = text::characterCount(row[column]);
            const std::string fill(widths[column] - std::min(length, widths[column]), ' ');
            const bool isLast = column + 1 == row.size();
            const bool isRight = column < sides.size() && sides[column] == 'r';
            lines += isRight ? fill + row[column] : row[column] + (isLast ? "" : fill);
            lines += isLast ? "\n" : "  ";
        }
    }
    return lines;
}

}  // namespace tallyrig::tool
