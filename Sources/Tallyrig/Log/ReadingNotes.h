// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ReadingReport.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tallyrig {

/// Gathers the notes of one reading. What readers have in common beside their own notes.
class ReadingNotes {
  public:
    /// `text` is what offsets refer to until `reportOn` or a function below says otherwise. It outlives this.
    explicit ReadingNotes(std::string_view text) : whole(text) {}

    /// Notes one more place of a kind. Places of one kind come in the order of the text, none behind its end.
    /// The note, to be completed before the next is added; null where the kind has as many as it may.
    ReadingNote* add(ReadingKind kind, std::size_t offset, std::optional<std::size_t> recordIndex = {});
    /// The same where `at` refers to the text.
    ReadingNote* add(ReadingKind kind, std::string_view at, std::optional<std::size_t> recordIndex = {}) {
        return add(kind, static_cast<std::size_t>(at.data() - whole.data()), recordIndex);
    }

    /// Notes that the value of a header's key is given up for that of `line`, if that is another.
    void addReplaced(std::string_view line, std::string_view key, std::string_view before,
                     std::string_view now);

    /// Notes what is to be said of the bytes of a file: which are no UTF-8, so that they are taken for ISO
    /// 8859-1, U+FFFD, NUL. `bytes` are the text, or what it was made of as a whole by `text::decoded`. One
    /// pass, fast where all is ASCII.
    void addEncodingOf(std::string_view bytes);
    /// Whether there are any bytes that it may have something to say of: NUL, or no ASCII.
    static bool hasOddBytes(std::string_view bytes);

    /// All of it, with offsets in those `bytes`, as `report` below.
    ReadingReport reportOn(std::string_view bytes) &&;

    /// Whether there is any note of this kind.
    bool has(ReadingKind kind) const { return counts[static_cast<std::size_t>(kind)] > 0; }

    /// All of it. Nothing may be added afterwards. Where there are notes, a pass over the text up to the
    /// last.
    ReadingReport report(std::optional<ReadingRepair> repair = {}) &&;

  private:
    ReadingNote* addByte(ReadingKind kind, std::string_view bytes, std::size_t offset);

    static constexpr std::size_t kindCount = static_cast<std::size_t>(ReadingKind::recordInRecord) + 1;

    std::string_view whole;
    std::vector<ReadingNote> notes;
    std::array<std::size_t, kindCount> counts{};  ///< Of the notes there are.
    std::array<std::size_t, kindCount> latest{};  ///< Where the last of each stands in `notes`.
};

/// `bytes` as a note shows them: decoded, cut and visible.
std::string shownInNote(std::string_view bytes);

/// The report with the offsets of the file that `text` was made from: each letter of it came from one byte
/// (ISO 8859-1), or from one or two units of UTF-16 behind a byte order mark.
ReadingReport withOffsetsOfLatin1(ReadingReport report, std::string_view text);
ReadingReport withOffsetsOfUTF16(ReadingReport report, std::string_view text);
/// The report of a file that has `count` bytes in front of the text that was read.
ReadingReport withOffsetsBehind(ReadingReport report, std::size_t count);

}  // namespace tallyrig
