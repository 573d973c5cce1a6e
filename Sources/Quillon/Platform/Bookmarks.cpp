// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/Bookmarks.h"

#include <expat.h>

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <limits>
#include <memory>
#include <utility>
#include <vector>

namespace quillon {

namespace {

constexpr std::string_view emptyList =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<xbel version=\"1.0\">\n</xbel>\n";

/// The prefixes are part of what other programs look for, and so must mean this.
using NameSpace = std::pair<std::string_view, std::string_view>;
constexpr NameSpace nameSpaces[] = {
    {"xmlns:bookmark", "http://www.freedesktop.org/standards/desktop-bookmarks"},
    {"xmlns:mime", "http://www.freedesktop.org/standards/shared-mime-info"}};

std::string escaped(std::string_view text) {
    std::string result;
    for (const char letter : text) {
        switch (letter) {
            case '&':
                result += "&amp;";
                break;
            case '<':
                result += "&lt;";
                break;
            case '"':
                result += "&quot;";
                break;
            case '\'':
                result += "&apos;";
                break;
            default:
                result += letter;
        }
    }
    return result;
}

std::string attribute(std::string_view name, std::string_view value) {
    return ' ' + std::string(name) + "=\"" + escaped(value) + '"';
}

std::string_view valueOf(const char* const* attributes, std::string_view name) {
    for (; *attributes != nullptr; attributes += 2) {
        if (name == *attributes) {
            return attributes[1];
        }
    }
    return {};
}

/// Where an element stands in the text.
struct Element {
    std::string name;
    std::size_t tag = 0;        ///< Where its first tag begins.
    std::size_t tagLength = 0;  ///< From "<" to ">".
    std::size_t end = 0;        ///< Where its last tag begins; behind the first one if that is the only one.
};

/// What a list holds that is to be changed.
struct Places {
    std::optional<Element> list;
    std::vector<NameSpace> missingNameSpaces;  ///< In the list.
    std::optional<Element> bookmark;
    std::optional<Element> info;
    std::optional<Element> metadata;
    std::optional<Element> applications;
    std::optional<Element> application;
    std::string count;  ///< How often the program used the file so far.
};

/// Goes through a list once.
class Reader {
  public:
    Reader(std::string_view list, const Bookmark& wanted)
        : text(list), bookmark(wanted), parser(XML_ParserCreate(nullptr), XML_ParserFree) {}

    /// Absent for what is no list.
    std::optional<Places> read() {
        if (parser == nullptr || text.size() > static_cast<std::size_t>(std::numeric_limits<int>::max())) {
            return std::nullopt;
        }
        XML_SetUserData(parser.get(), this);
        XML_SetElementHandler(
            parser.get(),
            [](void* reader, const char* name, const char** attributes) {
                static_cast<Reader*>(reader)->begin(name, attributes);
            },
            [](void* reader, const char*) { static_cast<Reader*>(reader)->end(); });
        const bool isWhole =
            XML_Parse(parser.get(), text.data(), static_cast<int>(text.size()), XML_TRUE) == XML_STATUS_OK;
        return isWhole && isList ? std::optional(std::move(places)) : std::nullopt;
    }

  private:
    std::size_t position() const { return static_cast<std::size_t>(XML_GetCurrentByteIndex(parser.get())); }

    void begin(std::string_view name, const char* const* attributes) {
        std::optional<Element>* const place = placeOf(name, attributes);
        if (place != nullptr && !*place) {
            const auto length = static_cast<std::size_t>(XML_GetCurrentByteCount(parser.get()));
            *place = Element{std::string(name), position(), length, 0};
            // Another encoding has other bytes, and an entity stands for a tag elsewhere.
            isList = isList && text.substr(position()).starts_with('<' + std::string(name));
            open.push_back(place);
        } else {
            open.push_back(nullptr);
        }
        if (place == &places.application) {
            places.count = valueOf(attributes, "count");
        }
        if (open.size() == 1) {
            isList = isList && place != nullptr;
            lookForNameSpaces(attributes);
        }
    }

    void lookForNameSpaces(const char* const* attributes) {
        for (const NameSpace& nameSpace : nameSpaces) {
            const std::string_view given = valueOf(attributes, nameSpace.first);
            if (given.empty()) {
                places.missingNameSpaces.push_back(nameSpace);
            } else if (given != nameSpace.second) {
                isList = false;
            }
        }
    }

    void end() {
        if (open.back() != nullptr) {
            (*open.back())->end = position();
        }
        open.pop_back();
    }

    /// Null for what is not to be changed.
    std::optional<Element>* placeOf(std::string_view name, const char* const* attributes) {
        std::optional<Element>* const parent = open.empty() ? nullptr : open.back();
        if (open.empty()) {
            return name == "xbel" ? &places.list : nullptr;
        }
        if (name == "bookmark") {
            return valueOf(attributes, "href") == bookmark.address ? &places.bookmark : nullptr;
        }
        if (parent == &places.bookmark && name == "info") {
            return &places.info;
        }
        if (parent == &places.info && name == "metadata") {
            return valueOf(attributes, "owner") == "http://freedesktop.org" ? &places.metadata : nullptr;
        }
        if (parent == &places.metadata && name == "bookmark:applications") {
            return &places.applications;
        }
        return parent == &places.applications && name == "bookmark:application" &&
                       valueOf(attributes, "name") == bookmark.program
                   ? &places.application
                   : nullptr;
    }

    std::string_view text;
    const Bookmark& bookmark;
    std::unique_ptr<XML_ParserStruct, void (*)(XML_Parser)> parser;
    Places places;
    std::vector<std::optional<Element>*> open;  ///< Null for those that are not to be changed.
    bool isList = true;
};

/// Changes to a text, told in the places of the text as it was.
class Edits {
  public:
    explicit Edits(std::string_view original) : text(original) {}

    void replace(std::size_t begin, std::size_t length, std::string with) {
        edits.push_back({begin, length, std::move(with)});
    }

    /// Puts `content` at the end of what is in the element.
    void append(const Element& element, const std::string& content) {
        const std::size_t behindTag = element.tag + element.tagLength;
        if (text.substr(0, behindTag).ends_with("/>")) {
            replace(behindTag - 2, 2, '>' + content + "</" + element.name + '>');
        } else {
            replace(element.end, 0, content);
        }
    }

    void setAttribute(const Element& element, std::string_view name, std::string_view value) {
        constexpr std::string_view blanks = " \t\r\n";
        const std::size_t first = element.tag + 1 + element.name.size();
        // A tag that was read without complaint holds names, "=" and quoted values in turns.
        for (std::size_t at = first;;) {
            at = text.find_first_not_of(blanks, at);
            if (text[at] == '>' || text[at] == '/') {
                replace(first, 0, attribute(name, value));
                return;
            }
            const std::size_t nameEnd = text.find_first_of(" \t\r\n=", at);
            const std::size_t quote = text.find_first_of("\"'", nameEnd);
            const std::size_t end = text.find(text[quote], quote + 1);
            if (text.substr(at, nameEnd - at) == name) {
                replace(quote, end + 1 - quote, '"' + escaped(value) + '"');
                return;
            }
            at = end + 1;
        }
    }

    std::string result() {
        std::ranges::stable_sort(edits, {}, &Edit::begin);
        std::string changed;
        std::size_t at = 0;
        for (const Edit& edit : edits) {
            changed.append(text.substr(at, edit.begin - at)).append(edit.with);
            at = edit.begin + edit.length;
        }
        return changed.append(text.substr(at));
    }

  private:
    struct Edit {
        std::size_t begin;
        std::size_t length;
        std::string with;
    };

    std::string_view text;
    std::vector<Edit> edits;
};

std::string oneMore(std::string_view count) {
    unsigned number = 0;
    const auto read = std::from_chars(count.data(), count.data() + count.size(), number);
    const bool isNumber = read.ec == std::errc() && number < std::numeric_limits<unsigned>::max();
    return std::to_string(isNumber ? number + 1 : 1);
}

}  // namespace

std::optional<std::string> withBookmark(std::string_view xbel, const Bookmark& bookmark) {
    const std::string_view text = xbel.empty() ? emptyList : xbel;
    const auto places = Reader(text, bookmark).read();
    if (!places) {
        return std::nullopt;
    }
    Edits edits(text);
    for (const auto& [name, value] : places->missingNameSpaces) {
        edits.setAttribute(*places->list, name, value);
    }
    const std::string used = attribute("modified", bookmark.time) + attribute("visited", bookmark.time);
    if (places->bookmark) {
        edits.setAttribute(*places->bookmark, "modified", bookmark.time);
        edits.setAttribute(*places->bookmark, "visited", bookmark.time);
    }
    if (places->application) {
        edits.setAttribute(*places->application, "exec", '\'' + bookmark.command + '\'');
        edits.setAttribute(*places->application, "modified", bookmark.time);
        edits.setAttribute(*places->application, "count", oneMore(places->count));
        return edits.result();
    }
    // What is missing, from the inside out.
    std::string missing = "<bookmark:application" + attribute("name", bookmark.program) +
                          attribute("exec", '\'' + bookmark.command + '\'') +
                          attribute("modified", bookmark.time) + attribute("count", "1") + "/>";
    if (places->applications) {
        edits.append(*places->applications, missing);
        return edits.result();
    }
    missing = "<bookmark:applications>" + missing + "</bookmark:applications>";
    if (places->metadata) {
        edits.append(*places->metadata, missing);
        return edits.result();
    }
    missing = "<metadata owner=\"http://freedesktop.org\"><mime:mime-type" +
              attribute("type", bookmark.type) + "/>" + missing + "</metadata>";
    if (places->info) {
        edits.append(*places->info, missing);
        return edits.result();
    }
    missing = "<info>" + missing + "</info>";
    if (places->bookmark) {
        edits.append(*places->bookmark, missing);
        return edits.result();
    }
    edits.append(*places->list, "  <bookmark" + attribute("href", bookmark.address) +
                                    attribute("added", bookmark.time) + used + '>' + missing +
                                    "</bookmark>\n");
    return edits.result();
}

}  // namespace quillon
