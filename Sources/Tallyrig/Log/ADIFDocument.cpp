// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Log/ADIFDocument.h"

#include "Tallyrig/Log/RecordEditor.h"
#include "Tallyrig/Log/RecordSearch.h"
#include "Tallyrig/Log/RecordValues.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace tallyrig {

namespace {

std::string replaced(std::string_view value, std::string_view find, std::string_view replacement) {
    std::string result;
    while (true) {
        const std::size_t at = value.find(find);
        result += value.substr(0, at);
        if (at == std::string_view::npos) {
            return result;
        }
        result += replacement;
        value.remove_prefix(at + find.size());
    }
}

/// The number of records whose value in the column, empty where they have none, fits.
template <typename Condition>
std::size_t countValues(const ADIFRecordList& records, std::string_view column, Condition fits) {
    RecordValues values({column});
    return static_cast<std::size_t>(std::ranges::count_if(records, [&](const ADIFRecord& record) {
        values.read(record);
        return fits(values.valueOrEmpty(0));
    }));
}

}  // namespace

ADIFDocument::ADIFDocument() : header(std::make_shared<const Header>()) {}

ADIFDocument::ADIFDocument(std::string headerComment, std::vector<ADIFField> headerFields,
                           ADIFRecordList records)
    : header(std::make_shared<const Header>(Header{std::move(headerComment), std::move(headerFields)})),
      recordList(std::move(records)) {}

void ADIFDocument::setHeaderComment(std::string comment) {
    header = std::make_shared<const Header>(Header{std::move(comment), header->fields});
}

void ADIFDocument::setHeaderFields(std::vector<ADIFField> fields) {
    header = std::make_shared<const Header>(Header{header->comment, std::move(fields)});
}

std::vector<std::string> ADIFDocument::fieldNames() const {
    std::vector<std::string> names;
    std::unordered_set<std::string> known;
    // The records of one log share their tags, so a name is looked up once for each set of tags that holds
    // it.
    std::unordered_map<const FieldTags*, std::vector<bool>> seenTags;
    const FieldTags* tags = nullptr;
    std::vector<bool>* seen = nullptr;
    for (const ADIFRecord& record : recordList) {
        const RecordStorage& stored = record.stored();
        if (&stored.tags() != tags) {
            tags = &stored.tags();
            seen = &seenTags[tags];
            seen->resize(tags->size());
        }
        for (std::size_t index = 0; index < stored.fieldCount(); ++index) {
            const FieldTags::Number number = stored.tagNumber(index);
            if (!(*seen)[number]) {
                (*seen)[number] = true;
                const std::string& name = (*tags)[number].name;
                if (known.insert(text::canonicalKey(name)).second) {
                    names.push_back(name);
                }
            }
        }
    }
    return names;
}

void ADIFDocument::renameColumn(std::string_view from, std::string_view to) {
    const FieldName source(from);
    const FieldName target(to);
    if (text::equal(source.upper(), target.upper())) {
        return;
    }
    RecordEditor editor;
    recordList.transform([&](const ADIFRecord& record) { return editor.rename(record, source, target); });
}

void ADIFDocument::duplicateColumn(std::string_view name, std::string_view as) {
    const FieldName source(name);
    const FieldName copy(as);
    RecordEditor editor;
    recordList.transform([&](const ADIFRecord& record) { return editor.duplicate(record, source, copy); });
}

void ADIFDocument::removeColumn(std::string_view name) {
    const FieldName removed(name);
    RecordEditor editor;
    recordList.transform([&](const ADIFRecord& record) { return editor.remove(record, removed); });
}

std::size_t ADIFDocument::setColumn(std::string_view name, std::string_view value, ColumnTarget target) {
    const FieldName column(name);
    const std::string newValue(value);
    RecordEditor editor;
    return recordList.transform([&](const ADIFRecord& record) -> std::optional<ADIFRecord> {
        const auto index = indexOfField(record.stored(), column);
        const std::string_view current = index ? record.stored().value(*index) : std::string_view();
        if ((target == ColumnTarget::emptyOnly && !current.empty()) || text::equal(current, newValue)) {
            return std::nullopt;
        }
        return newValue.empty() ? editor.remove(record, column) : editor.setValue(record, column, newValue);
    });
}

std::size_t ADIFDocument::replaceInColumn(std::string_view name, std::string_view find,
                                          std::string_view replacement) {
    if (find.empty()) {
        return 0;
    }
    const FieldName column(name);
    RecordEditor editor;
    return recordList.transform([&](const ADIFRecord& record) -> std::optional<ADIFRecord> {
        const auto index = indexOfField(record.stored(), column);
        if (!index || !text::contains(record.stored().value(*index), find)) {
            return std::nullopt;
        }
        return editor.setValue(record, column, replaced(record.stored().value(*index), find, replacement));
    });
}

std::size_t ADIFDocument::countWithoutValue(std::string_view column) const {
    return countValues(recordList, column, [](std::string_view value) { return value.empty(); });
}

std::size_t ADIFDocument::countContaining(std::string_view column, std::string_view find) const {
    return find.empty() ? 0 : countValues(recordList, column, [&](std::string_view value) {
        return text::contains(value, find);
    });
}

bool operator==(const ADIFDocument& left, const ADIFDocument& right) {
    return (left.header == right.header || (text::equal(left.headerComment(), right.headerComment()) &&
                                            left.headerFields() == right.headerFields())) &&
           left.recordList == right.recordList;
}

}  // namespace tallyrig
