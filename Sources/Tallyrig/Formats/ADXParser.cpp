#include "Tallyrig/Formats/ADXParser.h"

#include "Tallyrig/Log/ADIFRecordBuilder.h"
#include "Tallyrig/Text/Text.h"

#include <expat.h>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace tallyrig {

namespace {

enum class ElementKind { header, record, frame, application, userDefined, field };

ElementKind kindOf(std::string_view upperName) {
    if (upperName == "HEADER") {
        return ElementKind::header;
    }
    if (upperName == "RECORD") {
        return ElementKind::record;
    }
    if (upperName == "ADX" || upperName == "RECORDS") {
        return ElementKind::frame;
    }
    if (upperName == "APP") {
        return ElementKind::application;
    }
    return upperName == "USERDEF" ? ElementKind::userDefined : ElementKind::field;
}

/// What an element is, worked out once for each way in which a file spells its name.
struct Element {
    ElementKind kind = ElementKind::field;
    std::optional<FieldTags::Number> tag = {};  ///< Of a field without type; known once it was met.
};

struct SpellingHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
};

using Elements = std::unordered_map<std::string, Element, SpellingHash, std::equal_to<>>;

/// The attributes of one element.
class Attributes {
  public:
    /// `namesAndValues` holds `pairs` names and values in turns.
    void assign(const XML_Char** namesAndValues, std::size_t pairs) {
        entries.resize(std::max(entries.size(), pairs));
        for (count = 0; count < pairs; ++count, namesAndValues += 2) {
            entries[count].name = namesAndValues[0];
            entries[count].value = namesAndValues[1];
        }
    }
    void clear() { count = 0; }

    /// The value of the attribute of exactly this name, which is in upper case; failing that, of one that
    /// differs from it in case only.
    std::optional<std::string_view> find(std::string_view name) const {
        const auto end = entries.begin() + static_cast<std::ptrdiff_t>(count);
        auto found =
            std::find_if(entries.begin(), end, [&](const Entry& entry) { return entry.name == name; });
        if (found == end) {
            found = std::find_if(entries.begin(), end,
                                 [&](const Entry& entry) { return text::upper(entry.name) == name; });
        }
        return found == end ? std::nullopt : std::optional<std::string_view>(found->value);
    }
    std::string_view valueOrEmpty(std::string_view name) const {
        return find(name).value_or(std::string_view());
    }

  private:
    struct Entry {
        std::string name;
        std::string value;
    };

    std::vector<Entry> entries;  ///< Those behind `count` wait for the next element with as many.
    std::size_t count = 0;
};

/// The state of one reading: outside, in the header or in a record. Nesting is not checked.
class Builder {
  public:
    /// `attributes` holds `attributeCount` names and values in turns.
    void open(std::string_view name, const XML_Char** attributes, std::size_t attributeCount) {
        buffer.clear();
        const Element& element = opened(name);
        switch (element.kind) {
            case ElementKind::header:
                inHeader = true;
                break;
            case ElementKind::record:
                inRecord = true;
                record.dropFields();
                break;
            case ElementKind::frame:
                break;
            case ElementKind::application:
            case ElementKind::userDefined:
            case ElementKind::field:
                leafAttributes.assign(attributes, attributeCount);
                break;
        }
    }

    void take(std::string_view characters) { buffer += characters; }

    void close(std::string_view name) {
        Element& element = opened(name);
        switch (element.kind) {
            case ElementKind::header:
                inHeader = false;
                break;
            case ElementKind::record:
                records.append(record.takeRecord());
                inRecord = false;
                break;
            case ElementKind::frame:
                break;
            case ElementKind::application:
            case ElementKind::userDefined:
            case ElementKind::field:
                appendLeaf(name, element);
                leafAttributes.clear();
                break;
        }
    }

    ADIFDocument document() { return {std::string(), std::move(headerFields), std::move(records)}; }

  private:
    /// The element of this name. Nearly always an element is closed before another is opened.
    Element& opened(std::string_view name) {
        if (latest == nullptr || latest->first != name) {
            auto found = elements.find(name);
            if (found == elements.end()) {
                found = elements.emplace(name, Element{kindOf(text::upper(name))}).first;
            }
            latest = &*found;
        }
        return latest->second;
    }

    void appendLeaf(std::string_view name, Element& element) {
        if (!inRecord && !inHeader) {
            return;
        }
        const std::optional<std::string_view> type = leafAttributes.find("TYPE");
        if (element.kind == ElementKind::application) {
            fieldName = "APP_";
            fieldName += leafAttributes.valueOrEmpty("PROGRAMID");
            fieldName += '_';
            fieldName += leafAttributes.valueOrEmpty("FIELDNAME");
            appendField(fieldName, buffer, type);
        } else if (element.kind == ElementKind::userDefined && inRecord) {
            appendField(leafAttributes.valueOrEmpty("FIELDNAME"), buffer, std::nullopt);
        } else if (element.kind == ElementKind::userDefined) {
            fieldName = "USERDEF";
            fieldName += leafAttributes.valueOrEmpty("FIELDID");
            appendField(fieldName, definition(), type);
        } else if (inRecord && !type) {
            if (!element.tag) {
                element.tag = record.tag(name);
            }
            record.addField(*element.tag, buffer);
        } else {
            appendField(name, buffer, type);
        }
    }

    /// The value of a definition as ADI has it: the name, and behind a comma the values it may take, in
    /// braces.
    std::string definition() const {
        std::string value(text::trimmed(buffer));
        std::string_view choice = leafAttributes.valueOrEmpty("ENUM");
        if (choice.empty()) {
            choice = leafAttributes.valueOrEmpty("RANGE");
        }
        if (!choice.empty()) {
            const bool isWrapped = choice.starts_with('{');
            value += isWrapped ? "," : ",{";
            value += choice;
            value += isWrapped ? "" : "}";
        }
        return value;
    }

    void appendField(std::string_view name, std::string_view value, std::optional<std::string_view> type) {
        if (inRecord) {
            record.addField(name, value, type);
        } else {
            headerFields.emplace_back(name, std::string(value),
                                      type ? std::optional<std::string>(*type) : std::nullopt);
        }
    }

    std::vector<ADIFField> headerFields;
    ADIFRecordList records;
    ADIFRecordBuilder record;  ///< Without fields unless `inRecord`.
    bool inRecord = false;
    bool inHeader = false;
    Attributes leafAttributes;  ///< Of the element opened last, until one is closed.
    std::string buffer;         ///< The character data since the last opening tag.
    std::string fieldName;      ///< Put together here.
    Elements elements;
    Elements::value_type* latest = nullptr;
};

/// One run of expat, which ends at the first thing that is no part of a log.
class Run {
  public:
    Run() : parser(XML_ParserCreate(nullptr), XML_ParserFree) {
        if (parser == nullptr) {
            throw std::bad_alloc();
        }
        XML_SetUserData(parser.get(), this);
        XML_SetElementHandler(parser.get(), openElement, closeElement);
        XML_SetCharacterDataHandler(parser.get(), [](void* run, const XML_Char* characters, int size) {
            static_cast<Run*>(run)->builder.take({characters, static_cast<std::size_t>(size)});
        });
        XML_SetEntityDeclHandler(
            parser.get(),
            [](void* run, const XML_Char*, int, const XML_Char*, int, const XML_Char*, const XML_Char*,
               const XML_Char*, const XML_Char*) { static_cast<Run*>(run)->countDeclaration(); });
        XML_SetAttlistDeclHandler(
            parser.get(), [](void* run, const XML_Char*, const XML_Char*, const XML_Char*, const XML_Char*,
                             int) { static_cast<Run*>(run)->countDeclaration(); });
        XML_SetSkippedEntityHandler(parser.get(),
                                    [](void* run, const XML_Char*, int) { static_cast<Run*>(run)->stop(); });
    }

    ADIFDocument documentOf(std::string_view data) {
        // Expat counts bytes in an int.
        constexpr std::size_t largestPiece = std::size_t{1} << 30;
        bool isLast = false;
        while (!isLast) {
            const std::string_view piece = data.substr(0, largestPiece);
            data.remove_prefix(piece.size());
            isLast = data.empty();
            if (XML_Parse(parser.get(), piece.data(), static_cast<int>(piece.size()),
                          isLast ? XML_TRUE : XML_FALSE) != XML_STATUS_OK) {
                break;
            }
        }
        return builder.document();
    }

  private:
    static void openElement(void* data, const XML_Char* name, const XML_Char** attributes) {
        auto* const run = static_cast<Run*>(data);
        // Attributes that only a DTD has come behind those of the element: they could be any number for each.
        const auto written = static_cast<std::size_t>(XML_GetSpecifiedAttributeCount(run->parser.get()));
        run->builder.open(name, attributes, written / 2);
    }

    static void closeElement(void* data, const XML_Char* name) {
        static_cast<Run*>(data)->builder.close(name);
    }

    /// Expat resolves entities within entities by calling itself, so that enough of them exhaust the stack.
    void countDeclaration() {
        constexpr std::size_t mostDeclarations = 500;
        if (++declarations > mostDeclarations) {
            stop();
        }
    }

    void stop() { XML_StopParser(parser.get(), XML_FALSE); }

    std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser;
    Builder builder;
    std::size_t declarations = 0;
};

}  // namespace

ADIFDocument ADXParser::parse(std::string_view data) {
    return Run().documentOf(data);
}

}  // namespace tallyrig
