// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/ColumnFitting.h"

#include "Quillon/Catalogue/ADIFFieldCatalog.h"
#include "Quillon/Platform/TableMetrics.h"
#include "Tallyrig/Log/NamedFields.h"
#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string_view>
#include <unordered_set>

namespace quillon {

namespace {

namespace text = tallyrig::text;

constexpr std::size_t mostMeasuredOneByOne = 5999;
constexpr std::size_t sampleSize = 3000;
constexpr std::size_t none = static_cast<std::size_t>(-1);

/// What is gathered about one column.
struct FittedColumn {
    std::string name;
    std::size_t source = 0;  ///< The column that measures the values of this name.
    std::size_t lastRecord = none;
    std::unordered_set<std::string> measured;
    double content = 0;
};

/// As much of a text as can matter to a width that ends at 320: notes can be as long as a book.
std::string_view beginningOf(std::string_view text) {
    return text::beginning(text, 1024);
}

double wholeWidth(const TextMeasurer& measurer, MeasuredFont font, std::string_view shown) {
    return std::ceil(measurer.width(font, beginningOf(shown)));
}

std::vector<FittedColumn> measuredContents(const std::vector<std::string>& names,
                                           const tallyrig::ADIFRecordList& records,
                                           const TextMeasurer& measurer) {
    tallyrig::NamedFields fields(names);
    std::vector<FittedColumn> fitted(names.size());
    for (std::size_t column = 0; column < names.size(); ++column) {
        fitted[column].name = text::upper(names[column]);
        fitted[column].source = fields.positionOf(names[column]).value_or(column);
    }

    const std::size_t step = records.size() <= mostMeasuredOneByOne ? 1 : records.size() / sampleSize;
    for (std::size_t index = 0; index < records.size(); index += step) {
        fields.visit(records[index], [&](std::size_t position, std::string_view value) {
            FittedColumn& column = fitted[position];
            if (column.lastRecord == index) {
                return;  // Of several fields of a name, the first is shown.
            }
            column.lastRecord = index;
            const auto [shown, isNew] =
                column.measured.insert(ADIFFieldCatalog::displayValue(beginningOf(value), column.name));
            if (isNew && !shown->empty()) {
                column.content = std::max(column.content, wholeWidth(measurer, MeasuredFont::cell, *shown));
            }
        });
    }
    return fitted;
}

}  // namespace

std::vector<double> fittingWidths(const std::vector<std::string>& names,
                                  const tallyrig::ADIFRecordList& records, const TextMeasurer& measurer) {
    const TableMetrics metrics = TableMetrics::forFontHeight(measurer.height(MeasuredFont::cell));
    const std::vector<FittedColumn> fitted = measuredContents(names, records, measurer);
    std::vector<double> widths;
    widths.reserve(names.size());
    for (const FittedColumn& column : fitted) {
        const double dot = column.name == "BAND" ? metrics.bandDotRoom : 0;
        const double content = fitted[column.source].content + dot;
        const double label = wholeWidth(measurer, MeasuredFont::label, ADIFFieldCatalog::label(column.name)) +
                             metrics.sortMarkRoom;
        const double tag = wholeWidth(measurer, MeasuredFont::tag, "<" + column.name) + metrics.menuRoom;
        widths.push_back(std::clamp(
            std::max({content, label, tag}) + metrics.cellMargins + metrics.handleRoom, 60.0, 320.0));
    }
    return widths;
}

}  // namespace quillon
