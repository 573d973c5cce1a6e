#include "Tallyrig/Log/ReadingNotes.h"

#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/Decoding.h"
#include "Tallyrig/Text/Text.h"
#include "Tallyrig/Text/VisibleText.h"

#include <unicode/utf8.h>

#include <algorithm>
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

/// Counts lines as an editor does, place by place in ascending order.
class LineCounter {
  public:
    explicit LineCounter(std::string_view text) : whole(text) {}

    std::size_t lineAt(std::size_t offset) {
        for (; position < offset; ++position) {
            const char c = whole[position];
            // The LF of a CR LF ends no line of its own.
            line += (c == '\n' || (c == '\r' && !whole.substr(position + 1).starts_with('\n'))) ? 1U : 0U;
        }
        return line;
    }

  private:
    std::string_view whole;
    std::size_t position = 0;
    std::size_t line = 1;
};

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

void ReadingNotes::addEncoding() {
    const std::size_t nul = whole.find('\0');
    if (nul != std::string_view::npos) {
        add(ReadingKind::nulBytes, nul)->count = static_cast<std::size_t>(
            std::count(whole.begin() + static_cast<std::ptrdiff_t>(nul), whole.end(), '\0'));
    }
    if (text::isASCII(whole)) {
        return;
    }
    std::optional<std::size_t> firstOther;
    std::optional<std::size_t> firstWindows;
    std::size_t otherCount = 0;
    std::size_t windowsCount = 0;
    const auto* const bytes = reinterpret_cast<const std::uint8_t*>(whole.data());
    for (std::size_t next = 0; next < whole.size();) {
        const std::size_t begin = next;
        if (bytes[begin] < 0x80) {
            ++next;
            while (whole.size() - next >= sizeof(std::uint64_t) &&
                   (text::wordAt(whole.data() + next) & text::everyByte(0x80)) == 0) {
                next += sizeof(std::uint64_t);
            }
            continue;
        }
        UChar32 c = 0;
        U8_NEXT(bytes, next, whole.size(), c);
        if (c == 0xFFFD) {
            add(ReadingKind::lostCharacters, begin);
        } else if (c < 0 && bytes[begin] < 0xA0) {
            ++windowsCount;
            firstWindows = firstWindows.value_or(begin);
        } else if (c < 0) {
            ++otherCount;
            firstOther = firstOther.value_or(begin);
        }
    }
    if (firstWindows) {
        add(ReadingKind::windowsCharacters, *firstWindows)->count = windowsCount;
    }
    if (firstOther) {
        add(ReadingKind::latin1, *firstOther)->count = otherCount;
    }
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
