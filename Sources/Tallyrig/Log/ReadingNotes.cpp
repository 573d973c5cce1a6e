// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Log/ReadingNotes.h"

#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/Decoding.h"
#include "Tallyrig/Text/Text.h"
#include "Tallyrig/Text/VisibleText.h"

#include <unicode/utf8.h>

#include <algorithm>
#include <cstdint>
#include <tuple>
#include <utility>

namespace tallyrig {

namespace {

bool isContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// The front of `text`, `count` code points long at most.
std::string_view firstCodePoints(std::string_view text, std::size_t count) {
    std::size_t seen = 0;
    const auto* const end =
        std::ranges::find_if(text, [&](char byte) { return !isContinuation(byte) && ++seen > count; });
    return text.substr(0, static_cast<std::size_t>(end - text.begin()));
}

/// How many lines end in `text`, of which `next` is one byte further back. The LF of a CR LF ends no line of
/// its own. In pieces whose lines a byte can count, which is what makes this fast.
std::size_t lineEnds(std::string_view text, const char* next) {
    constexpr std::size_t mostInByte = 255;
    std::size_t count = 0;
    for (std::size_t begin = 0; begin < text.size(); begin += mostInByte) {
        const std::size_t end = std::min(begin + mostInByte, text.size());
        std::uint8_t ends = 0;
        for (std::size_t at = begin; at < end; ++at) {
            // Without branches, so that many bytes are looked at at once.
            const int isFeed = text[at] == '\n' ? 1 : 0;
            const int isReturn = text[at] == '\r' ? 1 : 0;
            const int isPair = next[at] == '\n' ? 1 : 0;
            ends = static_cast<std::uint8_t>(ends + (isFeed | (isReturn & ~isPair)));
        }
        count += ends;
    }
    return count;
}

/// Counts lines as an editor does, place by place in ascending order.
class LineCounter {
  public:
    explicit LineCounter(std::string_view text) : whole(text) {}

    std::size_t lineAt(std::size_t offset) {
        if (offset == position) {
            return line;
        }
        const std::size_t last = std::min(offset, whole.size() - 1);
        line += lineEnds(whole.substr(position, last - position), whole.data() + position + 1);
        if (last < offset) {
            line += lineEnds(whole.substr(last), "");
        }
        position = offset;
        return line;
    }

  private:
    std::string_view whole;
    std::size_t position = 0;
    std::size_t line = 1;
};

/// Bytes of one sort.
struct OddBytes {
    std::size_t first = 0;
    std::size_t count = 0;

    void add(std::size_t offset) {
        first = count == 0 ? offset : first;
        ++count;
    }
};

/// Bytes are looked at in blocks of so many, nearly all of which are plain ASCII.
constexpr std::size_t oddBlock = 64;

/// Where, from `begin` on, a block begins in which there is NUL or what is not ASCII; the size if none does.
/// `begin` is a multiple of the block's size or behind the end.
std::size_t firstOddBlock(std::string_view bytes, std::size_t begin) {
    for (; begin < bytes.size(); begin += oddBlock) {
        std::uint64_t seen = 0;
        text::forEachWord(bytes.substr(begin, oddBlock), [&](std::uint64_t word) {
            // The highest bit of a byte that is 0 or above 127, and of bytes above one that is 0.
            seen |= word | ((word - text::everyByte(1)) & ~word);
        });
        if ((seen & text::everyByte(0x80)) != 0) {
            return begin;
        }
    }
    return bytes.size();
}

/// The report with each offset replaced by the sum of `sizeOf` for the first bytes of all letters before it,
/// and `start`.
template <typename SizeOf>
ReadingReport withOffsetsSummed(const ReadingReport& report, std::string_view text, std::size_t start,
                                SizeOf sizeOf) {
    std::vector<ReadingNote> notes(report.notes().begin(), report.notes().end());
    std::size_t position = 0;
    for (ReadingNote& note : notes) {
        for (; position < note.offset; ++position) {
            start += isContinuation(text[position]) ? 0 : sizeOf(static_cast<unsigned char>(text[position]));
        }
        note.offset = start;
    }
    return ReadingReport(std::move(notes), report.repair());
}

}  // namespace

ReadingNote* ReadingNotes::add(ReadingKind kind, std::size_t offset, std::optional<std::size_t> recordIndex) {
    const auto index = static_cast<std::size_t>(kind);
    if (counts[index] == ReadingReport::mostNotes(kind)) {
        ++notes[latest[index]].count;
        return nullptr;
    }
    ++counts[index];
    latest[index] = notes.size();
    std::string_view line = whole.substr(offset);
    line = line.substr(0, 8 * ReadingReport::mostCharacters);
    line = line.substr(0, line.find_first_of("\r\n"));
    return &notes.emplace_back(ReadingNote{
        .kind = kind, .offset = offset, .recordIndex = recordIndex, .excerpt = shownInNote(line)});
}

void ReadingNotes::addReplaced(std::string_view line, std::string_view key, std::string_view before,
                               std::string_view now) {
    if (before.empty() || text::equal(before, now)) {
        return;
    }
    if (ReadingNote* const note = add(ReadingKind::headerTwice, line)) {
        note->field = key;
        note->value = shownInNote(before);
    }
}

void ReadingNotes::addEncodingOf(std::string_view bytes) {
    OddBytes nuls;
    OddBytes windows;
    OddBytes others;
    const auto* const units = reinterpret_cast<const std::uint8_t*>(bytes.data());
    for (std::size_t next = firstOddBlock(bytes, 0); next < bytes.size();) {
        const std::size_t begin = next;
        if (units[begin] != 0 && units[begin] < 0x80) {
            next = begin % oddBlock == oddBlock - 1 ? firstOddBlock(bytes, begin + 1) : begin + 1;
            continue;
        }
        UChar32 c = 0;
        U8_NEXT(units, next, bytes.size(), c);
        if (c == 0) {
            nuls.add(begin);
        } else if (c == 0xFFFD) {
            addByte(ReadingKind::lostCharacters, bytes, begin);
        } else if (c < 0) {
            (units[begin] < 0xA0 ? windows : others).add(begin);
        }
    }
    for (const auto& [kind, odd] :
         {std::pair(ReadingKind::nulBytes, nuls), std::pair(ReadingKind::windowsCharacters, windows),
          std::pair(ReadingKind::latin1, others)}) {
        if (odd.count > 0) {
            addByte(kind, bytes, odd.first)->count = odd.count;
        }
    }
}

bool ReadingNotes::hasOddBytes(std::string_view bytes) {
    return firstOddBlock(bytes, 0) < bytes.size();
}

ReadingNote* ReadingNotes::addByte(ReadingKind kind, std::string_view bytes, std::size_t offset) {
    if (bytes.data() != whole.data()) {
        // Each byte that is not ASCII has become two in the text.
        const std::string_view before = bytes.substr(0, offset);
        offset += static_cast<std::size_t>(std::ranges::count_if(
            before, [](char byte) { return static_cast<unsigned char>(byte) >= 0x80; }));
    }
    return add(kind, offset);
}

ReadingReport ReadingNotes::reportOn(std::string_view bytes) && {
    const bool isDecoded = bytes.data() != whole.data();
    const std::string_view text = whole;
    ReadingReport result = std::move(*this).report();
    return isDecoded ? withOffsetsOfLatin1(std::move(result), text) : result;
}

ReadingReport ReadingNotes::report(std::optional<ReadingRepair> repair) && {
    std::ranges::stable_sort(notes, {},
                             [](const ReadingNote& note) { return std::tuple(note.offset, note.kind); });
    LineCounter lines(whole);
    for (ReadingNote& note : notes) {
        note.line = lines.lineAt(note.offset);
    }
    return ReadingReport(std::move(notes), repair);
}

std::string shownInNote(std::string_view bytes) {
    // Four bytes make a code point at most; what is no UTF-8 within them is not counted apart.
    const std::string_view front = text::beginning(bytes, 4 * (ReadingReport::mostCharacters + 1));
    const std::string decoded = text::decoded(front);
    const std::string_view shown = firstCodePoints(decoded, ReadingReport::mostCharacters);
    return text::visibleText(shown) + (shown.size() < decoded.size() ? "…" : "");
}

ReadingReport withOffsetsOfLatin1(ReadingReport report, std::string_view text) {
    return withOffsetsSummed(report, text, 0, [](unsigned char) { return std::size_t{1}; });
}

ReadingReport withOffsetsOfUTF16(ReadingReport report, std::string_view text) {
    constexpr unsigned char firstOfFour = 0xF0;
    return withOffsetsSummed(report, text, 2,
                             [](unsigned char byte) { return std::size_t{byte >= firstOfFour ? 4U : 2U}; });
}

ReadingReport withOffsetsBehind(ReadingReport report, std::size_t count) {
    std::vector<ReadingNote> notes(report.notes().begin(), report.notes().end());
    for (ReadingNote& note : notes) {
        note.offset += count;
    }
    return ReadingReport(std::move(notes), report.repair());
}

}  // namespace tallyrig
