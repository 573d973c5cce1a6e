#include "Quillon/Catalogue/ADIFFieldCatalog.h"
#include "Quillon/Platform/TableMetrics.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Stores/LogStoreOperation.h"
#include "Tallyrig/Log/PerTag.h"
#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace quillon {

namespace {

namespace text = tallyrig::text;

/// The key of a column's width.
std::string widthKey(std::string_view name) {
    return text::canonicalKey(text::upper(name));
}

bool isLetter(char c) {
    return c >= 'A' && c <= 'Z';
}

/// Whether `upperName` is one of the names.
template <typename... Names>
bool isOneOf(std::string_view upperName, Names... names) {
    return ((upperName == names) || ...);
}

/// What is gathered about one column to find out how wide it must be.
struct FittedColumn {
    std::string name;
    std::size_t source = 0;  ///< The column that measures the values of this name.
    std::size_t lastRecord = static_cast<std::size_t>(-1);
    std::unordered_set<std::string> measured;
    double content = 0;
};

/// As much of a text as can matter to a width that ends at 320: notes can be as long as a book.
std::string_view beginningOf(std::string_view text) {
    return tallyrig::text::beginning(text, 1024);
}

}  // namespace

std::vector<std::string> LogStore::columnsFor(const tallyrig::ADIFDocument& document) {
    std::vector<std::string> names = document.fieldNames();
    if (!names.empty()) {
        return names;
    }
    return {"CALL", "QSO_DATE", "TIME_ON",  "BAND",       "MODE",
            "FREQ", "RST_SENT", "RST_RCVD", "GRIDSQUARE", "NAME"};
}

LogStore::Columns::iterator LogStore::findColumn(std::string_view upperName) {
    return std::ranges::find_if(state.columns,
                                [&](const std::string& column) { return text::equal(column, upperName); });
}

bool LogStore::columnExists(std::string_view name) const {
    return std::ranges::any_of(state.columns, [upperName = text::upper(name)](const std::string& column) {
        return text::equal(column, upperName);
    });
}

std::string LogStore::cleanedFieldName(std::string_view name) {
    std::string cleaned(text::trimmed(name));
    std::erase_if(cleaned, [](char c) { return c == '<' || c == '>' || c == ':'; });
    return text::upper(cleaned);
}

bool LogStore::isValidFieldName(std::string_view cleanedName) {
    return !cleanedName.empty() && isLetter(cleanedName.front()) &&
           std::ranges::all_of(cleanedName,
                               [](char c) { return isLetter(c) || (c >= '0' && c <= '9') || c == '_'; });
}

QString LogStore::invalidFieldNameMessage(std::string_view name) {
    return QStringLiteral(
               "«%1» ist kein gültiger ADIF-Feldname.\n"
               "Erlaubt sind A–Z, 0–9 und _, beginnend mit einem Buchstaben (z. B. SOTA_REF).")
        .arg(QString::fromStdString(std::string(text::trimmedOfBlanks(name))));
}

bool LogStore::addColumn(std::string_view name) {
    std::string column = cleanedFieldName(name);
    if (!isValidFieldName(column) || columnExists(column)) {
        return false;
    }
    const Operation operation(*this);
    commitUndo(currentSnapshot());
    state.columns.push_back(std::move(column));
    return true;
}

bool LogStore::renameColumn(std::string_view old, std::string_view newName) {
    const std::string source = text::upper(old);
    const std::string target = cleanedFieldName(newName);
    const auto column = findColumn(source);
    if (column == state.columns.end()) {
        return false;
    }
    if (text::equal(source, target)) {
        return true;
    }
    if (!isValidFieldName(target) || columnExists(target)) {
        return false;
    }
    const Operation operation(*this);
    commitUndo(currentSnapshot());
    *column = target;
    if (auto width = state.columnWidths.extract(widthKey(source))) {
        state.columnWidths.insert_or_assign(widthKey(target), width.mapped());
    }
    if (state.sortColumn && text::equal(*state.sortColumn, source)) {
        state.sortColumn = target;
    }
    state.document.renameColumn(source, target);
    state.isDirty = true;
    return true;
}

void LogStore::duplicateColumn(std::string_view name) {
    const std::string source = text::upper(name);
    const auto column = findColumn(source);
    if (column == state.columns.end()) {
        return;
    }
    const Operation operation(*this);
    commitUndo(currentSnapshot());
    std::string copy;
    for (int number = 2; copy.empty() || columnExists(copy); ++number) {
        copy = source + "_" + std::to_string(number);
    }
    state.columns.insert(column + 1, copy);
    if (const auto width = state.columnWidths.find(widthKey(source)); width != state.columnWidths.end()) {
        state.columnWidths.insert_or_assign(widthKey(copy), width->second);
    }
    state.document.duplicateColumn(source, copy);
    state.isDirty = true;
}

void LogStore::removeColumn(std::string_view name) {
    const std::string removed = text::upper(name);
    tallyrig::ADIFDocument reduced = state.document;
    reduced.removeColumn(removed);
    const bool hadData = !reduced.isSameAs(state.document);
    if (!hadData && !columnExists(removed)) {
        return;
    }
    const Operation operation(*this);
    commitUndo(currentSnapshot());
    std::erase_if(state.columns, [&](const std::string& column) { return text::equal(column, removed); });
    state.columnWidths.erase(widthKey(removed));
    if (state.sortColumn && text::equal(*state.sortColumn, removed)) {
        state.sortColumn.reset();
    }
    state.document = std::move(reduced);
    state.isDirty = state.isDirty || hadData;
}

void LogStore::moveColumnBy(std::string_view name, int offset) {
    const auto column = findColumn(text::upper(name));
    if (column == state.columns.end()) {
        return;
    }
    const std::ptrdiff_t target = column - state.columns.begin() + offset;
    if (target < 0 || target >= std::ssize(state.columns)) {
        return;
    }
    const Operation operation(*this);
    commitUndo(currentSnapshot());
    std::swap(*column, state.columns[static_cast<std::size_t>(target)]);
}

void LogStore::moveColumnBefore(std::string_view name, std::string_view target) {
    const auto column = findColumn(text::upper(name));
    const std::string upperTarget = text::upper(target);
    if (column == state.columns.end() || text::equal(*column, upperTarget)) {
        return;
    }
    const Operation operation(*this);
    commitUndo(currentSnapshot());
    std::string moved = std::move(*column);
    state.columns.erase(column);
    state.columns.insert(findColumn(upperTarget), std::move(moved));
}

double LogStore::defaultWidth(std::string_view name) {
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

double LogStore::width(std::string_view name) const {
    const auto found = state.columnWidths.find(widthKey(name));
    return found == state.columnWidths.end() ? defaultWidth(name) : found->second;
}

void LogStore::setWidth(double width, std::string_view name) {
    const Operation operation(*this);
    state.columnWidths.insert_or_assign(widthKey(name), std::clamp(width, 48.0, 600.0));
}

void LogStore::autoFitColumns() {
    autoFitColumns(state.columns);
}

void LogStore::autoFitColumns(const std::vector<std::string>& list) {
    const Operation operation(*this);
    const std::vector<double> widths = fittingWidths(list);
    for (std::size_t column = 0; column < list.size(); ++column) {
        state.columnWidths.insert_or_assign(widthKey(list[column]), widths[column]);
    }
}

double LogStore::fittingWidth(std::string_view name) const {
    return fittingWidths({std::string(name)}).front();
}

std::vector<double> LogStore::fittingWidths(const std::vector<std::string>& names) const {
    constexpr std::size_t mostMeasuredOneByOne = 5999;
    constexpr std::size_t sampleSize = 3000;
    const TableMetrics metrics = TableMetrics::forFontHeight(measurer.height(MeasuredFont::cell));
    const auto wholeWidth = [this](MeasuredFont font, std::string_view shown) {
        return std::ceil(measurer.width(font, beginningOf(shown)));
    };

    std::vector<FittedColumn> fitted(names.size());
    // Upper-cased names by canonical key; a name given twice shares the entry of the first.
    std::unordered_map<std::string, std::size_t> places;
    for (std::size_t column = 0; column < names.size(); ++column) {
        fitted[column].name = text::upper(names[column]);
        fitted[column].source =
            places.try_emplace(text::canonicalKey(fitted[column].name), column).first->second;
    }

    // One walk over the fields of each sampled record, whatever the number of columns.
    constexpr std::size_t noColumn = static_cast<std::size_t>(-1);
    tallyrig::PerTag<std::size_t> columnOfTag;
    const tallyrig::ADIFRecordList& records = state.document.records();
    const std::size_t step = records.size() <= mostMeasuredOneByOne ? 1 : records.size() / sampleSize;
    for (std::size_t index = 0; index < records.size(); index += step) {
        const tallyrig::RecordStorage& record = records[index].stored();
        const std::size_t* const columns = columnOfTag.of(record.tags(), [&](const tallyrig::FieldTag& tag) {
            const auto found = places.find(text::canonicalKey(tag.name));
            return found == places.end() ? noColumn : found->second;
        });
        for (std::size_t field = 0; field < record.fieldCount(); ++field) {
            const std::size_t place = columns[record.tagNumber(field)];
            if (place == noColumn || fitted[place].lastRecord == index) {
                continue;
            }
            FittedColumn& column = fitted[place];
            column.lastRecord = index;  // Of several fields of a name, the first is shown.
            const auto [shown, isNew] = column.measured.insert(
                ADIFFieldCatalog::displayValue(beginningOf(record.value(field)), column.name));
            if (isNew && !shown->empty()) {
                column.content = std::max(column.content, wholeWidth(MeasuredFont::cell, *shown));
            }
        }
    }

    std::vector<double> widths;
    widths.reserve(names.size());
    for (const FittedColumn& column : fitted) {
        const double dot = column.name == "BAND" ? metrics.bandDotRoom : 0;
        const double label =
            wholeWidth(MeasuredFont::label, ADIFFieldCatalog::label(column.name)) + metrics.sortMarkRoom;
        const double tag = wholeWidth(MeasuredFont::tag, "<" + column.name) + metrics.menuRoom;
        const double content = fitted[column.source].content + dot;
        widths.push_back(std::clamp(
            std::max({content, label, tag}) + metrics.cellMargins + metrics.handleRoom, 60.0, 320.0));
    }
    return widths;
}

}  // namespace quillon
