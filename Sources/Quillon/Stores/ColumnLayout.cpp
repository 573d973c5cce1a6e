// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/ColumnLayout.h"

#include "Tallyrig/Text/ASCII.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>

namespace quillon {

namespace {

namespace text = tallyrig::text;

/// The key of a column's width.
std::string widthKey(std::string_view name) {
    return text::canonicalKey(text::upper(name));
}

/// Whether `upperName` is one of the names.
template <typename... Names>
bool isOneOf(std::string_view upperName, Names... names) {
    return ((upperName == names) || ...);
}

}  // namespace

ColumnLayout::Names ColumnLayout::namesFor(const tallyrig::ADIFDocument& document) {
    Names names = document.fieldNames();
    if (!names.empty()) {
        return names;
    }
    return {"CALL", "QSO_DATE", "TIME_ON",  "BAND",       "MODE",
            "FREQ", "RST_SENT", "RST_RCVD", "GRIDSQUARE", "NAME"};
}

std::string ColumnLayout::cleanedName(std::string_view typed) {
    std::string cleaned(text::trimmed(typed));
    std::erase_if(cleaned, [](char c) { return c == '<' || c == '>' || c == ':'; });
    return text::upper(cleaned);
}

bool ColumnLayout::isValidName(std::string_view cleanedName) {
    return !cleanedName.empty() && text::isASCIIUpper(cleanedName.front()) &&
           std::ranges::all_of(cleanedName, [](char c) {
               return text::isASCIIUpper(c) || text::isASCIIDigit(c) || c == '_';
           });
}

double ColumnLayout::defaultWidth(std::string_view name) {
    const std::string column = text::upper(name);
    if (isOneOf(column, "QSO_DATE", "QSO_DATE_OFF")) {
        return 100;
    }
    if (isOneOf(column, "TIME_ON", "TIME_OFF")) {
        return 80;
    }
    if (isOneOf(column, "BAND", "BAND_RX", "MODE", "SUBMODE")) {
        return 78;
    }
    if (isOneOf(column, "FREQ", "FREQ_RX", "GRIDSQUARE", "MY_GRIDSQUARE")) {
        return 92;
    }
    if (isOneOf(column, "RST_SENT", "RST_RCVD")) {
        return 70;
    }
    if (isOneOf(column, "NAME", "QTH", "COMMENT", "NOTES")) {
        return 180;
    }
    return 130;
}

ColumnLayout::Names::iterator ColumnLayout::find(std::string_view upperName) {
    return std::ranges::find_if(columns,
                                [&](const std::string& column) { return text::equal(column, upperName); });
}

bool ColumnLayout::contains(std::string_view name) const {
    return std::ranges::any_of(columns, [upperName = text::upper(name)](const std::string& column) {
        return text::equal(column, upperName);
    });
}

bool ColumnLayout::add(std::string_view typed) {
    std::string name = cleanedName(typed);
    if (!isValidName(name) || contains(name)) {
        return false;
    }
    columns.push_back(std::move(name));
    return true;
}

void ColumnLayout::append(std::string name) {
    if (!contains(name)) {
        columns.push_back(std::move(name));
    }
}

ColumnLayout::Renaming ColumnLayout::rename(std::string_view old, std::string_view typed) {
    const std::string source = text::upper(old);
    const std::string target = cleanedName(typed);
    const auto column = find(source);
    if (column == columns.end()) {
        return Renaming::refused;
    }
    if (text::equal(source, target)) {
        return Renaming::needless;
    }
    if (!isValidName(target) || contains(target)) {
        return Renaming::refused;
    }
    *column = target;
    if (auto width = widthsSet.extract(widthKey(source))) {
        widthsSet.insert_or_assign(widthKey(target), width.mapped());
    }
    return Renaming::done;
}

std::optional<std::string> ColumnLayout::duplicate(std::string_view name) {
    const std::string source = text::upper(name);
    const auto column = find(source);
    if (column == columns.end()) {
        return std::nullopt;
    }
    std::string copy;
    for (int number = 2; copy.empty() || contains(copy); ++number) {
        copy = source + "_" + std::to_string(number);
    }
    columns.insert(std::next(column), copy);
    if (const auto width = widthsSet.find(widthKey(source)); width != widthsSet.end()) {
        widthsSet.insert_or_assign(widthKey(copy), width->second);
    }
    return copy;
}

bool ColumnLayout::remove(std::string_view name) {
    widthsSet.erase(widthKey(name));
    const auto column = find(text::upper(name));
    if (column == columns.end()) {
        return false;
    }
    columns.erase(column);
    return true;
}

bool ColumnLayout::moveBy(std::string_view name, int offset) {
    const auto column = find(text::upper(name));
    const std::ptrdiff_t target = column - columns.begin() + offset;
    if (column == columns.end() || target < 0 || target >= std::ssize(columns)) {
        return false;
    }
    std::swap(*column, columns[static_cast<std::size_t>(target)]);
    return true;
}

bool ColumnLayout::moveBefore(std::string_view name, std::string_view target) {
    const auto column = find(text::upper(name));
    const std::string upperTarget = text::upper(target);
    if (column == columns.end() || text::equal(*column, upperTarget)) {
        return false;
    }
    std::string moved = std::move(*column);
    columns.erase(column);
    columns.insert(find(upperTarget), std::move(moved));
    return true;
}

double ColumnLayout::width(std::string_view name) const {
    const auto found = widthsSet.find(widthKey(name));
    return found == widthsSet.end() ? defaultWidth(name) : found->second;
}

void ColumnLayout::setWidth(double width, std::string_view name) {
    widthsSet.insert_or_assign(widthKey(name), std::clamp(width, 48.0, 600.0));
}

}  // namespace quillon
