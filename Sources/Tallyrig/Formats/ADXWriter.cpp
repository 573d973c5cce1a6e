// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Formats/ADXWriter.h"

#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/Text.h"

#include <cstddef>
#include <optional>
#include <unordered_set>
#include <utility>
#include <vector>

namespace tallyrig {

namespace {

/// Appends `value` escaped as character data.
void appendText(std::string& text, std::string_view value) {
    std::size_t begin = 0;
    for (std::size_t at = 0; at < value.size(); ++at) {
        std::string_view escaped;
        switch (value[at]) {
            case '&':
                escaped = "&amp;";
                break;
            case '<':
                escaped = "&lt;";
                break;
            case '>':
                escaped = "&gt;";
                break;
            default:
                continue;
        }
        text += value.substr(begin, at - begin);
        text += escaped;
        begin = at + 1;
    }
    text += value.substr(begin);
}

void appendAttribute(std::string& text, std::string_view name, std::string_view value) {
    text += ' ';
    text += name;
    text += "=\"";
    while (true) {
        const std::size_t quote = value.find('"');
        appendText(text, value.substr(0, quote));
        if (quote == std::string_view::npos) {
            break;
        }
        text += "&quot;";
        value.remove_prefix(quote + 1);
    }
    text += '"';
}

void appendType(std::string& text, std::optional<std::string_view> type) {
    if (type && !type->empty()) {
        appendAttribute(text, "TYPE", *type);
    }
}

void appendWrapped(std::string& text, std::string_view name, std::string_view choice) {
    appendAttribute(text, name,
                    choice.starts_with('{') ? std::string(choice) : '{' + std::string(choice) + '}');
}

/// The number of a user-defined field: what follows USERDEF in the name of its definition.
std::optional<std::string_view> userdefID(std::string_view name) {
    constexpr std::string_view prefix = "USERDEF";
    if (!name.starts_with(prefix) || name.size() == prefix.size()) {
        return std::nullopt;
    }
    const std::string_view id = name.substr(prefix.size());
    return text::isAllNumeric(id) ? std::optional(id) : std::nullopt;
}

/// What the value of a definition says.
struct UserdefValue {
    std::string_view name;
    std::optional<std::string_view> enumDef;
    std::optional<std::string_view> range;
};

UserdefValue parseUserdefValue(std::string_view value) {
    const std::size_t comma = value.find(',');
    if (comma == std::string_view::npos) {
        return {value, std::nullopt, std::nullopt};
    }
    const std::string_view name = value.substr(0, comma);
    const std::string_view choice = value.substr(comma + 1);
    if (text::contains(choice, ":")) {
        return {name, std::nullopt, choice};
    }
    return {name, choice, std::nullopt};
}

/// The names of the user-defined fields, as canonical keys in upper case.
std::unordered_set<std::string> userdefFieldNames(const std::vector<ADIFField>& headerFields) {
    std::unordered_set<std::string> names;
    for (const ADIFField& field : headerFields) {
        if (!userdefID(field.name)) {
            continue;
        }
        const std::string_view name = text::trimmedOfBlanks(parseUserdefValue(field.value).name);
        if (!name.empty()) {
            names.insert(text::canonicalKey(text::upper(name)));
        }
    }
    return names;
}

/// An application field in the two parts of its name.
struct AppName {
    std::string_view program;
    std::string_view field;
};

std::optional<AppName> splitAppName(std::string_view name) {
    constexpr std::string_view prefix = "APP_";
    if (!name.starts_with(prefix)) {
        return std::nullopt;
    }
    const std::string_view rest = name.substr(prefix.size());
    const std::size_t separator = rest.find('_');
    if (separator == std::string_view::npos || separator == 0) {
        return std::nullopt;
    }
    return AppName{rest.substr(0, separator), rest.substr(separator + 1)};
}

void appendPlainElement(std::string& text, std::string_view name, std::string_view value,
                        std::optional<std::string_view> type) {
    text += '<';
    text += name;
    appendType(text, type);
    text += '>';
    appendText(text, value);
    text += "</";
    text += name;
    text += ">\n";
}

void appendHeaderElement(std::string& text, const ADIFField& field) {
    text += "    ";
    const std::optional<std::string_view> id = userdefID(field.name);
    if (!id) {
        appendPlainElement(text, field.name, field.value, field.type);
        return;
    }
    const UserdefValue definition = parseUserdefValue(field.value);
    text += "<USERDEF";
    appendAttribute(text, "FIELDID", *id);
    appendType(text, field.type);
    if (definition.enumDef) {
        appendWrapped(text, "ENUM", *definition.enumDef);
    }
    if (definition.range) {
        appendWrapped(text, "RANGE", *definition.range);
    }
    text += '>';
    appendText(text, definition.name);
    text += "</USERDEF>\n";
}

void appendRecordElement(std::string& text, const FieldTag& tag, std::string_view value,
                         const std::unordered_set<std::string>& userdefNames) {
    text += "      ";
    if (const std::optional<AppName> app = splitAppName(tag.name)) {
        text += "<APP";
        appendAttribute(text, "PROGRAMID", app->program);
        appendAttribute(text, "FIELDNAME", app->field);
        appendType(text, tag.type);
        text += '>';
        appendText(text, value);
        text += "</APP>\n";
    } else if (!userdefNames.empty() && userdefNames.contains(text::canonicalKey(tag.name))) {
        text += "<USERDEF";
        appendAttribute(text, "FIELDNAME", tag.name);
        text += '>';
        appendText(text, value);
        text += "</USERDEF>\n";
    } else {
        appendPlainElement(text, tag.name, value, tag.type);
    }
}

/// About as long as the text will be, so that it is laid down once.
std::size_t estimatedSize(const ADIFDocument& document) {
    std::size_t size = 1024;
    for (const ADIFRecord& record : document.records()) {
        const RecordStorage& stored = record.stored();
        size += stored.allValues().size() + 30;
        for (std::size_t index = 0; index < stored.fieldCount(); ++index) {
            size += stored.tag(index).name.size() * 2 + 12;
        }
    }
    return size;
}

}  // namespace

std::string ADXWriter::write(const ADIFDocument& document, std::string_view createdTimestamp) const {
    const std::unordered_set<std::string> userdefNames = userdefFieldNames(document.headerFields());
    std::string text;
    text.reserve(estimatedSize(document));
    text += "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ADX>\n";
    const ADIFWriter adif{programID, programVersion, adifVersion, writeHeader};
    const std::vector<ADIFField> headerFields =
        writeHeader ? adif.headerFields(document, createdTimestamp) : document.headerFields();
    if (!headerFields.empty()) {
        text += "  <HEADER>\n";
        for (const ADIFField& field : headerFields) {
            appendHeaderElement(text, field);
        }
        text += "  </HEADER>\n";
    }
    text += "  <RECORDS>\n";
    for (const ADIFRecord& record : document.records()) {
        const RecordStorage& stored = record.stored();
        text += "    <RECORD>\n";
        for (std::size_t index = 0; index < stored.fieldCount(); ++index) {
            appendRecordElement(text, stored.tag(index), stored.value(index), userdefNames);
        }
        text += "    </RECORD>\n";
    }
    text += "  </RECORDS>\n</ADX>\n";
    return text;
}

}  // namespace tallyrig
