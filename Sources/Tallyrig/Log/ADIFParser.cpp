// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Log/ADIFParser.h"

#include "Tallyrig/Log/ADIExaminer.h"
#include "Tallyrig/Log/ADIFRecordBuilder.h"
#include "Tallyrig/Log/ADITags.h"
#include "Tallyrig/Text/ASCII.h"
#include "Tallyrig/Text/Decoding.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace tallyrig {

namespace {

/// A tag without its length, as a file spells it, and what it stands for. A program writes its tags the same
/// way and in the same order from record to record, so most tags are found by trying the one that came next
/// the last time.
struct Spelling {
    std::string name;  ///< The bytes between "<" and the first ":".
    std::string tail;  ///< The bytes between the digits of the length and ">".
    FieldTags::Number tag = 0;
    Spelling* successor = nullptr;  ///< The one that stood behind it the last time.
};

/// Whether `at` (with at least four bytes behind it) begins with EO, `letter` and ">", in either case.
bool isMark(const char* at, char letter) {
    return (at[0] | 0x20) == 'e' && (at[1] | 0x20) == 'o' && (at[2] | 0x20) == letter && at[3] == '>';
}

class Reading {
  public:
    /// `examinerForIt`, if there is one, is shown each stretch of `data` in which something seems wrong.
    explicit Reading(std::string_view data, ADIExaminer* examinerForIt = nullptr)
        : begin(data.data()),
          at(data.data()),
          end(data.data() + data.size()),
          stretchBegin(data.data()),
          examiner(examinerForIt) {}

    ADIFDocument document() {
        if (!findOpening()) {
            return {};
        }
        const std::string_view preamble(begin, static_cast<std::size_t>(at - begin));
        while (readTag() && findOpening()) {
        }
        if (examiner != nullptr) {
            at = end;
            examine(ADIExaminer::Stretch::rest);
        }
        if (!builder.isEmpty()) {
            records.append(builder.takeRecord());
        }
        std::string comment;
        if (sawEndOfHeader) {
            const std::string decoded = text::decoded(preamble);
            comment = text::trimmed(decoded);
        }
        return {std::move(comment), std::move(headerFields), std::move(records)};
    }

    bool hasHeader() const { return sawEndOfHeader; }

  private:
    std::size_t left() const { return static_cast<std::size_t>(end - at); }

    /// Moves to the next "<", or to the end and false if there is none.
    bool findOpening() {
        if (at < end && *at == '<') {
            return true;
        }
        // What stands between two tags is one blank or one line end nearly always.
        if (left() >= 2 && at[1] == '<' && isWhiteSpace(*at)) {
            ++at;
            return true;
        }
        const char* const gap = at;
        const auto* const opening =
            at == end ? nullptr : static_cast<const char*>(std::memchr(at, '<', left()));
        at = opening == nullptr ? end : opening;
        isSuspect = isSuspect || !std::all_of(gap, at, isWhiteSpace);
        return opening != nullptr;
    }

    static bool isWhiteSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

    /// Shows the stretch up to here to the examiner, which there is, and begins another.
    void examine(ADIExaminer::Stretch stretch) {
        const auto offset = [this](const char* place) { return static_cast<std::size_t>(place - begin); };
        // A stretch at the end may hold nothing that makes a record.
        const bool hasRecord = stretch == ADIExaminer::Stretch::record || !builder.isEmpty();
        examiner->examine(stretch, offset(stretchBegin), offset(at),
                          hasRecord ? std::optional(records.size()) : std::nullopt);
    }

    /// Whether something seems wrong with the record at hand.
    bool isRecordSuspect() const {
        const auto isCall = [this](const RecordStorage::Entry& entry) { return entry.tag == callTag; };
        return isSuspect || builder.isEmpty() || builder.valuesAtHand().find('<') != std::string_view::npos ||
               std::ranges::count_if(builder.entriesAtHand(), isCall) > 1;
    }

    /// Reads the tag at the "<" and the value behind it; false if the tag has no end.
    bool readTag() {
        ++at;
        if (left() >= 4 && isMark(at, 'r')) {
            at += 4;
            endRecord();
            return true;
        }
        if (expected != nullptr && readSpelled(*expected)) {
            last = expected;
            expected = expected->successor;
            return true;
        }
        const auto* const closing =
            left() == 0 ? nullptr : static_cast<const char*>(std::memchr(at, '>', left()));
        if (closing == nullptr) {
            return false;
        }
        const std::string_view bytes(at, static_cast<std::size_t>(closing - at));
        Spelling* const spelling = spellingOf(bytes);
        if (spelling != nullptr && readSpelled(*spelling)) {
            // The first field of a record is expected behind the end of another.
            (last == nullptr ? first : last->successor) = spelling;
            last = spelling;
            expected = spelling->successor;
            return true;
        }
        at = closing + 1;
        readOtherTag(adiTag(bytes));
        return true;
    }

    /// Reads tag and value if the bytes are those of `spelling` with a plain length; otherwise moves nothing.
    bool readSpelled(const Spelling& spelling) {
        const std::size_t nameSize = spelling.name.size();
        const std::size_t tailSize = spelling.tail.size();
        // The longest length taken here, so that nothing overflows and the end is looked at once.
        constexpr std::size_t mostDigits = 18;
        if (left() < nameSize + tailSize + mostDigits + 3 ||
            std::memcmp(at, spelling.name.data(), nameSize) != 0 || at[nameSize] != ':') {
            return false;
        }
        const char* digit = at + nameSize + 1;
        const char* const digitsLimit = digit + mostDigits;
        std::uint64_t length = 0;
        while (digit < digitsLimit && text::isASCIIDigit(*digit)) {
            length = length * 10 + static_cast<std::uint64_t>(*digit - '0');
            ++digit;
        }
        if (digit == at + nameSize + 1 || digit[tailSize] != '>' ||
            std::memcmp(digit, spelling.tail.data(), tailSize) != 0) {
            return false;
        }
        at = digit + tailSize + 1;
        readValue(spelling.tag, length);
        return true;
    }

    void readValue(FieldTags::Number tag, std::uint64_t length) {
        const std::size_t size = length < left() ? static_cast<std::size_t>(length) : left();
        builder.addField(tag, {at, size});
        at += size;
    }

    void readOtherTag(const ADITag& tag) {
        if (tag.name == "EOR") {
            endRecord();
        } else if (tag.name == "EOH") {
            endHeader();
        } else {
            isSuspect = true;
            readValue(builder.tag(tag.name, tag.type), tag.length);
        }
    }

    void endHeader() {
        if (examiner != nullptr) {
            examine(ADIExaminer::Stretch::header);
        }
        headerFields = builder.takeFields();
        sawEndOfHeader = true;
        beginStretch();
    }

    void beginStretch() {
        stretchBegin = at;
        isSuspect = false;
    }

    void endRecord() {
        if (examiner != nullptr && isRecordSuspect()) {
            examine(ADIExaminer::Stretch::record);
        }
        beginStretch();
        records.append(builder.takeRecord());
        last = nullptr;
        expected = first;
    }

    /// The spelling of the bytes of a tag, made if it is new; absent for marks and for tags out of the
    /// ordinary.
    Spelling* spellingOf(std::string_view bytes) {
        const std::size_t colon = bytes.find(':');
        if (colon == std::string_view::npos) {
            return nullptr;
        }
        const std::size_t tailStart = bytes.find_first_not_of("0123456789", colon + 1);
        const std::string_view tail =
            tailStart == std::string_view::npos ? std::string_view() : bytes.substr(tailStart);
        // With a tail, the length must end in front of it: "5x" is no number. A "<" is looked at each time.
        if (tailStart == colon + 1 || (!tail.empty() && tail.front() != ':') ||
            bytes.find('<') != std::string_view::npos) {
            return nullptr;
        }
        std::string key(bytes.substr(0, colon + 1));
        key += tail;
        const auto known = spellings.find(key);
        if (known != spellings.end()) {
            return &known->second;
        }
        constexpr std::size_t mostSpellings = 20'000;
        const ADITag tag = adiTag(bytes);
        if (spellings.size() >= mostSpellings || tag.name == "EOR" || tag.name == "EOH") {
            return nullptr;
        }
        Spelling spelling{std::string(bytes.substr(0, colon)), std::string(tail),
                          builder.tag(tag.name, tag.type)};
        if (tag.name == "CALL" && !tag.type) {
            callTag = spelling.tag;
        }
        return &spellings.emplace(std::move(key), std::move(spelling)).first->second;
    }

    const char* begin;
    const char* at;
    const char* end;
    const char* stretchBegin;                  ///< Behind the last mark.
    ADIExaminer* examiner;                     ///< May be null.
    bool isSuspect = false;                    ///< Something out of the ordinary was met in this stretch.
    std::optional<FieldTags::Number> callTag;  ///< Once a call was met.
    ADIFRecordBuilder builder;
    ADIFRecordList records;
    std::vector<ADIFField> headerFields;
    bool sawEndOfHeader = false;
    std::unordered_map<std::string, Spelling> spellings;
    Spelling* first = nullptr;     ///< The first field of the latest record.
    Spelling* expected = nullptr;  ///< What the next tag will probably be.
    Spelling* last = nullptr;      ///< The field just read, absent at the start of a record.
};

}  // namespace

ADIFDocument ADIFParser::parse(std::string_view data) {
    return Reading(data).document();
}

ReadDocument ADIFParser::read(std::string_view data) {
    ReadingNotes notes(data);
    notes.addEncodingOf(data);
    ADIExaminer examiner(data, notes);
    Reading reading(data, &examiner);
    ADIFDocument document = reading.document();
    if (!reading.hasHeader()) {
        examiner.examineFront();
    }
    return {std::move(document), std::move(notes).report(examiner.repair())};
}

}  // namespace tallyrig
