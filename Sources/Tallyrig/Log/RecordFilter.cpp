// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Log/RecordFilter.h"

#include "Tallyrig/Log/PerTag.h"
#include "Tallyrig/Text/ASCII.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>

namespace tallyrig {

namespace {

/// Text as it is compared: in lower case, equal for all equivalent spellings.
std::string folded(std::string_view text) {
    return text::canonicalKey(text::lower(text));
}

constexpr std::uint8_t lowered(char c) {
    return static_cast<std::uint8_t>(text::lowerASCII(c));
}

/// What a byte means to a scan for ASCII text.
enum class ByteKind : std::uint8_t {
    indifferent,
    first,    ///< The sought text may begin here.
    unusual,  ///< Folding what begins here may give ASCII or join with the letter before.
};

/// Where the values of a record end. They lie one after the other, so that what was found may reach from one
/// into the next.
class ValueEnds {
  public:
    explicit ValueEnds(const RecordStorage& storage) : record(storage) {}

    /// The end of the value in which `place` lies. Places ascend from call to call, so that all calls
    /// together cost one walk over the fields.
    std::size_t behind(std::size_t place) {
        while (end <= place) {
            end += record.ownValue(next++).size();
        }
        return end;
    }

  private:
    const RecordStorage& record;
    std::size_t next = 0;
    std::size_t end = 0;
};

/// Searches for text that is ASCII when folded, in values as they lie in memory.
class PlainSearch {
  public:
    explicit PlainSearch(std::string_view foldedText) : sought(foldedText) {
        for (std::size_t byte = 0; byte < kinds.size(); ++byte) {
            kinds[byte] = lowered(static_cast<char>(byte)) == lowered(sought.front()) ? ByteKind::first
                          : isUnusual(byte)                                           ? ByteKind::unusual
                                                                                      : ByteKind::indifferent;
        }
    }

    enum class Answer { absent, present, foldToTell };

    /// Whether one of the record's values contains the text.
    Answer search(const RecordStorage& record) const {
        const std::string_view values = record.allValues();
        ValueEnds ends(record);
        for (std::size_t at = 0; at < values.size(); ++at) {
            const ByteKind kind = kindOf(values[at]);
            if (kind == ByteKind::indifferent) {
                continue;
            }
            if (kind == ByteKind::unusual) {
                return Answer::foldToTell;
            }
            const std::size_t end = at + sought.size();
            if (end > values.size() || !standsAt(values.data() + at) ||
                (sought.size() > 1 && end > ends.behind(at))) {
                continue;
            }
            // A mark that follows may make another letter of the last one.
            const bool isLastLetterSure = end == values.size() || kindOf(values[end]) != ByteKind::unusual;
            return isLastLetterSure ? Answer::present : Answer::foldToTell;
        }
        return Answer::absent;
    }

  private:
    /// Most letters beyond ASCII that are met in logs (Latin-1, a part of Latin Extended-A, Cyrillic) fold to
    /// others beyond ASCII and are no marks. Those are the lead bytes of all others.
    static bool isUnusual(std::size_t byte) {
        constexpr std::array harmless = {0xC2U, 0xC3U, 0xC5U, 0xD0U, 0xD1U};
        return byte >= 0xC0 && std::ranges::find(harmless, byte) == harmless.end();
    }

    ByteKind kindOf(char c) const { return kinds[static_cast<std::uint8_t>(c)]; }

    bool standsAt(const char* place) const {
        for (const char c : sought) {
            if (lowered(*place++) != static_cast<std::uint8_t>(c)) {
                return false;
            }
        }
        return true;
    }

    std::string_view sought;
    std::array<ByteKind, 256> kinds;
};

class Search {
  public:
    explicit Search(std::string_view searchText)
        : sought(folded(searchText)), isPlain(text::isASCII(sought)), plainSearch(sought) {}

    bool keeps(const RecordStorage& record) { return isInTags(record) || isInValues(record); }

  private:
    bool isInTags(const RecordStorage& record) {
        const char* const hits = tagsFound.of(record.tags(), [&](const FieldTag& tag) {
            const bool isHit = text::contains(folded(tag.name), sought) ||
                               (tag.sharedValue && text::contains(folded(*tag.sharedValue), sought));
            isInAnyTag = isInAnyTag || isHit;
            return static_cast<char>(isHit);
        });
        if (!isInAnyTag) {
            return false;
        }
        for (std::size_t index = 0; index < record.fieldCount(); ++index) {
            if (hits[record.tagNumber(index)] != 0) {
                return true;
            }
        }
        return false;
    }

    bool isInValues(const RecordStorage& record) const {
        if (isPlain) {
            const PlainSearch::Answer answer = plainSearch.search(record);
            if (answer != PlainSearch::Answer::foldToTell) {
                return answer == PlainSearch::Answer::present;
            }
        } else if (text::isASCII(record.allValues())) {
            return false;
        }
        for (std::size_t index = 0; index < record.fieldCount(); ++index) {
            const std::string_view value = record.ownValue(index);
            if ((isPlain || !text::isASCII(value)) && text::contains(folded(value), sought)) {
                return true;
            }
        }
        return false;
    }

    std::string sought;
    bool isPlain;
    PlainSearch plainSearch;
    PerTag<char> tagsFound;
    bool isInAnyTag = false;
};

}  // namespace

std::vector<std::uint32_t> recordsContaining(const ADIFRecordList& records, std::string_view searchText) {
    std::vector<std::uint32_t> found;
    Search search(searchText);
    std::uint32_t position = 0;
    for (const ADIFRecord& record : records) {
        if (search.keeps(record.stored())) {
            found.push_back(position);
        }
        ++position;
    }
    return found;
}

}  // namespace tallyrig
