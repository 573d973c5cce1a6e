// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Formats/ADXParser.h"

#include "Tallyrig/Formats/ADXNotes.h"
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
    bool isKnown = true;                        ///< Where there are notes: some table knows it.
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
    /// What is met goes to `notesForIt`, which may be null.
    explicit Builder(ADXNotes* notesForIt) : notes(notesForIt) {}

    /// `attributes` holds `attributeCount` names and values in turns.
    void open(std::string_view name, const XML_Char** attributes, std::size_t attributeCount) {
        const Element& element = opened(name);
        if (notes != nullptr) {
            tellOpened(name, element);
        }
        buffer.clear();
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
        if (notes != nullptr) {
            tellClosed(name, element);
        }
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

    bool isInRecord() const { return inRecord; }

  private:
    static bool isLeaf(const Element& element) {
        return element.kind == ElementKind::application || element.kind == ElementKind::userDefined ||
               element.kind == ElementKind::field;
    }

    std::optional<std::size_t> recordIndex() const {
        return inRecord ? std::optional(records.size()) : std::nullopt;
    }

    void tellOpened(std::string_view name, const Element& element) {
        if (!openLeaf.empty() && !text::trimmed(buffer).empty()) {
            notes->tell(ReadingKind::elementInside, openLeaf, recordIndex());
        }
        if (element.kind == ElementKind::record && !record.isEmpty()) {
            notes->tell(ReadingKind::recordInRecord, {}, recordIndex());
        }
        openLeaf = isLeaf(element) ? name : std::string_view();
        if (isLeaf(element)) {
            notes->tellLeaf();
        }
    }

    void tellClosed(std::string_view name, const Element& element) {
        const bool isPlaced = inRecord || inHeader;
        if (isLeaf(element) && !isPlaced && !text::trimmed(buffer).empty()) {
            notes->tell(ReadingKind::elementOutside, name, std::nullopt);
        } else if (isLeaf(element) && isPlaced && !element.isKnown) {
            notes->tellUnknown(name, recordIndex());
        }
        openLeaf.clear();
    }

    /// The element of this name. Nearly always an element is closed before another is opened.
    Element& opened(std::string_view name) {
        if (latest == nullptr || latest->first != name) {
            auto found = elements.find(name);
            if (found == elements.end()) {
                const std::string upperName = text::upper(name);
                const ElementKind kind = kindOf(upperName);
                const bool isKnown =
                    notes == nullptr || kind != ElementKind::field || ADXNotes::isKnown(upperName);
                found = elements.emplace(name, Element{kind, std::nullopt, isKnown}).first;
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

    ADXNotes* notes;
    std::string openLeaf;  ///< Where there are notes: the element that is open, if it is one of a field.
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
    /// What is met besides the log goes to `notesForIt`, which may be null.
    explicit Run(ADXNotes* notesForIt = nullptr)
        : parser(XML_ParserCreate(nullptr), XML_ParserFree), notes(notesForIt), builder(notesForIt) {
        if (parser == nullptr) {
            throw std::bad_alloc();
        }
        if (notes != nullptr) {
            notes->follow([this] { return static_cast<std::size_t>(XML_GetCurrentByteIndex(parser.get())); });
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
                if (notes != nullptr) {
                    notes->tellEnd(fault(), builder.isInRecord());
                }
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
        if (++declarations > mostDeclarations) {
            stop();
        }
    }

    void stop() { XML_StopParser(parser.get(), XML_FALSE); }

    XMLFault fault() const {
        switch (XML_GetErrorCode(parser.get())) {
            case XML_ERROR_NO_ELEMENTS:
            case XML_ERROR_UNCLOSED_TOKEN:
            case XML_ERROR_PARTIAL_CHAR:
            case XML_ERROR_UNCLOSED_CDATA_SECTION:
                return XMLFault::fileEnds;
            case XML_ERROR_INVALID_TOKEN:
                return XMLFault::invalidCharacter;
            case XML_ERROR_TAG_MISMATCH:
                return XMLFault::wrongClosingTag;
            case XML_ERROR_UNDEFINED_ENTITY:
                return XMLFault::unknownEntity;
            case XML_ERROR_UNKNOWN_ENCODING:
            case XML_ERROR_INCORRECT_ENCODING:
                return XMLFault::unknownEncoding;
            case XML_ERROR_JUNK_AFTER_DOC_ELEMENT:
                return XMLFault::textBehindRoot;
            case XML_ERROR_DUPLICATE_ATTRIBUTE:
                return XMLFault::attributeTwice;
            case XML_ERROR_AMPLIFICATION_LIMIT_BREACH:
                return XMLFault::tooMuchDeclared;
            case XML_ERROR_ABORTED:
                // Nothing else stops the run.
                return declarations > mostDeclarations ? XMLFault::tooMuchDeclared : XMLFault::unknownEntity;
            default:
                return XMLFault::other;
        }
    }

    static constexpr std::size_t mostDeclarations = 500;

    std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser;
    ADXNotes* notes;
    Builder builder;
    std::size_t declarations = 0;
};

}  // namespace

ADIFDocument ADXParser::parse(std::string_view data) {
    return Run().documentOf(data);
}

ReadDocument ADXParser::read(std::string_view data) {
    ADXNotes notes(data);
    ADIFDocument document = Run(&notes).documentOf(data);
    const std::size_t recordCount = document.records().size();
    return {std::move(document), std::move(notes).report(recordCount)};
}

}  // namespace tallyrig
