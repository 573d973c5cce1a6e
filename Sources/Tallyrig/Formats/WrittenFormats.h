// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Formats/ADXParser.h"
#include "Tallyrig/Formats/ADXWriter.h"
#include "Tallyrig/Log/ADIFParser.h"
#include "Tallyrig/Log/ADIFWriter.h"
#include "Tallyrig/Log/LogFormat.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// What counts as the same of a log that was written and read again. Private to `WritingReport`.
namespace tallyrig::written {

/// "\r\n" and "\r" as XML hands them on.
inline std::string withLineFeeds(std::string_view value) {
    std::string result;
    for (std::size_t at = 0; at < value.size(); ++at) {
        if (value[at] != '\r') {
            result += value[at];
        } else if (!value.substr(at + 1).starts_with('\n')) {
            result += '\n';
        }
    }
    return result;
}

/// The definition of a user-defined field in one spelling of many.
inline std::string definition(std::string_view value) {
    const std::size_t comma = value.find(',');
    std::string result(text::trimmed(value.substr(0, comma)));
    if (comma != std::string_view::npos) {
        const std::string_view choice = value.substr(comma + 1);
        result += ',';
        result += choice.starts_with('{') ? std::string(choice) : '{' + std::string(choice) + '}';
    }
    return result;
}

/// ADI text as `ADIFWriter` writes it: what of a log it carries, and what counts as the same in it.
struct ADIText {
    static constexpr LogFormat format = LogFormat::adif;
    static ADIFDocument parse(std::string_view text) { return ADIFParser::parse(text); }
    static bool isSameValue(std::string_view value, std::string_view back) {
        return text::equal(value, back);
    }
    static bool isSameDefinition(const ADIFField&, const ADIFField&) { return false; }
    static bool isSameType(std::string_view type, std::string_view back) { return text::equal(type, back); }
    static bool hasComment(const ADIFWriter& writer) { return writer.writeHeader; }
    static bool hasHeader(const ADIFWriter& writer) { return writer.writeHeader; }
};

/// ADX as `ADXWriter` writes it; likewise.
struct ADXText {
    static constexpr LogFormat format = LogFormat::adx;
    static ADIFDocument parse(std::string_view text) { return ADXParser::parse(text); }
    static bool isSameValue(std::string_view value, std::string_view back) {
        return text::equal(value, back) ||
               (text::contains(value, "\r") && text::equal(withLineFeeds(value), withLineFeeds(back)));
    }
    static bool isSameDefinition(const ADIFField& field, const ADIFField& back) {
        return field.name.starts_with("USERDEF") &&
               isSameValue(definition(field.value), definition(back.value));
    }
    /// The type of a user-defined field stands in its definition alone.
    static bool isSameType(std::string_view type, std::string_view back) {
        return back.empty() || text::equal(type, back);
    }
    static bool hasComment(const ADXWriter&) { return false; }
    static bool hasHeader(const ADXWriter&) { return true; }
};

/// The header without the fields that every writer stamps with its own values.
inline std::vector<ADIFField> unstamped(const std::vector<ADIFField>& header) {
    std::vector<ADIFField> fields = header;
    for (const std::string_view name : {"ADIF_VER", "PROGRAMID", "PROGRAMVERSION", "CREATED_TIMESTAMP"}) {
        const auto found = std::ranges::find_if(
            fields, [name](const ADIFField& field) { return text::equal(field.name, name); });
        if (found != fields.end()) {
            fields.erase(found);
        }
    }
    return fields;
}

/// Whether records come back. What it learns of tags it keeps by address: for two documents that stay.
template <typename Format>
class Comparison {
  public:
    bool operator()(const ADIFRecord& record, const ADIFRecord& back) {
        const RecordStorage& stored = record.stored();
        const RecordStorage& storedBack = back.stored();
        if (stored.fieldCount() != storedBack.fieldCount()) {
            return false;
        }
        follow(stored.tags(), storedBack.tags());
        // Nearly always a record comes back as it lay in memory.
        bool isSameLayout = text::areSameBytes(stored.allValues(), storedBack.allValues());
        for (std::size_t field = 0; field < stored.fieldCount(); ++field) {
            const Match match = matchOf(stored.tagNumber(field), storedBack.tagNumber(field));
            if (match == Match::none) {
                return false;
            }
            isSameLayout = isSameLayout && match == Match::withValue &&
                           stored.ownValue(field).size() == storedBack.ownValue(field).size();
        }
        for (std::size_t field = 0; !isSameLayout && field < stored.fieldCount(); ++field) {
            if (!Format::isSameValue(stored.value(field), storedBack.value(field))) {
                return false;
            }
        }
        return true;
    }

  private:
    /// Of two tags; with the value that each has for all its fields, which may be none.
    enum class Match : std::uint8_t { none, withoutValue, withValue };
    struct Known {
        std::size_t backNumber;
        Match match;
    };

    void follow(const FieldTags& nextTags, const FieldTags& nextBackTags) {
        if (&nextTags != tags || &nextBackTags != backTags) {
            tags = &nextTags;
            backTags = &nextBackTags;
            known.assign(tags->size(), {backTags->size(), Match::none});
        }
    }

    Match matchOf(FieldTags::Number number, FieldTags::Number backNumber) {
        Known& latest = known[number];
        if (latest.backNumber != backNumber) {
            latest = {backNumber, match((*tags)[number], (*backTags)[backNumber])};
        }
        return latest.match;
    }

    static Match match(const FieldTag& tag, const FieldTag& back) {
        if (!text::equal(tag.name, back.name) ||
            !Format::isSameType(tag.type.value_or(""), back.type.value_or(""))) {
            return Match::none;
        }
        const bool hasSameValue = tag.sharedValue && back.sharedValue ? *tag.sharedValue == *back.sharedValue
                                                                      : tag.sharedValue == back.sharedValue;
        return hasSameValue ? Match::withValue : Match::withoutValue;
    }

    const FieldTags* tags = nullptr;
    const FieldTags* backTags = nullptr;
    std::vector<Known> known;  ///< By number of a tag, what it was compared with the last time.
};

}  // namespace tallyrig::written
