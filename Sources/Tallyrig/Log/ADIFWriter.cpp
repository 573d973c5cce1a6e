// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Log/ADIFWriter.h"

#include "Tallyrig/Text/Text.h"

#include <fmt/chrono.h>
#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <ctime>
#include <optional>

namespace tallyrig {

namespace {

void upsert(std::vector<ADIFField>& fields, std::string_view name, std::string_view value) {
    const auto found =
        std::ranges::find_if(fields, [&](const ADIFField& field) { return text::equal(field.name, name); });
    if (found != fields.end()) {
        found->value = value;
    } else {
        fields.emplace_back(name, std::string(value));
    }
}

/// Appends a field as a tag with its length in bytes, its value, and a blank.
void render(std::string& text, std::string_view name, std::string_view value,
            std::optional<std::string_view> type) {
    char digits[24];
    const char* const digitsEnd = std::to_chars(digits, digits + sizeof digits, value.size()).ptr;
    text += '<';
    text += name;
    text += ':';
    text.append(digits, static_cast<std::size_t>(digitsEnd - digits));
    if (type && !type->empty()) {
        text += ':';
        text += *type;
    }
    text += '>';
    text += value;
    text += ' ';
}

/// About as long as the text will be, so that it is laid down once.
std::size_t estimatedSize(const ADIFDocument& document) {
    std::size_t size = 512 + document.headerComment().size();
    for (const ADIFRecord& record : document.records()) {
        const RecordStorage& stored = record.stored();
        size += stored.allValues().size() + 8;
        for (std::size_t index = 0; index < stored.fieldCount(); ++index) {
            size += stored.tag(index).name.size() + 7;
        }
    }
    return size;
}

}  // namespace

std::string timestamp(std::chrono::system_clock::time_point moment) {
    return fmt::format("{:%Y%m%d %H%M%S}", fmt::gmtime(std::chrono::system_clock::to_time_t(moment)));
}

std::string ADIFWriter::headerComment(const ADIFDocument& document) const {
    return document.headerComment().empty() ? "ADIF-Export erstellt mit " + programID
                                            : document.headerComment();
}

std::vector<ADIFField> ADIFWriter::headerFields(const ADIFDocument& document,
                                                std::string_view createdTimestamp) const {
    std::vector<ADIFField> fields = document.headerFields();
    upsert(fields, "ADIF_VER", adifVersion);
    upsert(fields, "PROGRAMID", programID);
    upsert(fields, "PROGRAMVERSION", programVersion);
    upsert(fields, "CREATED_TIMESTAMP", createdTimestamp);
    return fields;
}

std::string ADIFWriter::write(const ADIFDocument& document, std::string_view createdTimestamp) const {
    std::string text;
    text.reserve(estimatedSize(document));
    if (writeHeader) {
        text += headerComment(document);
        text += '\n';
        for (const ADIFField& field : headerFields(document, createdTimestamp)) {
            render(text, field.name, field.value, field.type);
        }
        text += "<EOH>\n\n";
    }
    for (const ADIFRecord& record : document.records()) {
        const RecordStorage& stored = record.stored();
        for (std::size_t index = 0; index < stored.fieldCount(); ++index) {
            const FieldTag& tag = stored.tag(index);
            render(text, tag.name, stored.value(index), tag.type);
        }
        text += "<EOR>\n";
    }
    return text;
}

}  // namespace tallyrig
