// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADITags.h"
#include "Tallyrig/Log/ReadingNotes.h"

#include <cstddef>
#include <optional>
#include <string_view>

namespace tallyrig {

/// Says what is wrong with stretches of an ADI file in which the reader suspects that something is. It reads
/// them once more, slowly, so that the reader itself need know of nothing but suspicion.
class ADIExaminer {
  public:
    /// `data` is the file that `notes` are made of. Both outlive this.
    ADIExaminer(std::string_view data, ReadingNotes& notes) : file(data), report(notes) {}

    /// The bytes from `begin`, behind the last mark or where the file begins, up to `end`: behind the mark
    /// that made them record `recordIndex`, behind an <EOH> (no index), or the end of the file, where the
    /// index is that of the record that the reader makes of what is left.
    enum class Stretch { record, header, rest };
    void examine(Stretch stretch, std::size_t begin, std::size_t end, std::optional<std::size_t> recordIndex);

    /// To be called for a file without header: what stands in front of its first tag.
    void examineFront();

    /// The repair that puts right with certainty what was found, absent if nothing is that certain.
    std::optional<ReadingRepair> repair() const;

  private:
    /// The field read last, as far as what follows depends on it.
    struct Field {
        PlacedADITag place;
        bool isNoted = false;  ///< What stands behind it is explained by a note about it.
    };

    void examineField(Field& field);
    void examineGap(std::size_t begin, std::size_t end, std::optional<Field>& before);
    void noteGapBehind(const Field& field, std::size_t begin, std::string_view text);
    ReadingNote* add(ReadingKind kind, std::size_t offset) { return report.add(kind, offset, record); }
    ReadingNote* addField(ReadingKind kind, const PlacedADITag& place, std::string_view value);

    std::string_view file;
    ReadingNotes& report;
    std::optional<std::size_t> record;  ///< Of the stretch at hand.
    bool hasNearbyEnds = false;
    std::size_t headerCount = 0;
};

}  // namespace tallyrig
