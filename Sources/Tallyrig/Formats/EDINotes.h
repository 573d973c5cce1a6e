// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ReadingNotes.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace tallyrig {

/// What is to be said of an EDI file besides its QSOs. The reader tells it the lines that it met, first those
/// outside the QSOs, then the QSOs, both in the order of the file.
class EDINotes {
  public:
    /// Lines told to it refer to the text of `reportForIt`; both outlive this.
    explicit EDINotes(ReadingNotes& reportForIt) : report(reportForIt) {}

    /// A line that begins with "[".
    void tellSection(std::string_view line);
    /// A line of the header; `key` in upper case, absent if it has none.
    void tellLine(std::string_view line, std::optional<std::string_view> key, std::string_view value);
    /// `line` replaces a value of the header that is part of all QSOs.
    void tellReplaced(std::string_view line, std::string_view key, std::string_view before,
                      std::string_view now) {
        report.addReplaced(line, key, before, now);
    }
    /// A line of the QSO section that was left out, for it has too few columns.
    void tellShort(std::string_view line, std::size_t columnCount);
    /// A line that was read: how many columns it has, ten at the most, what stands behind those, and the
    /// call.
    void tellQSO(std::string_view line, std::size_t columnCount, std::string_view rest, std::string_view call,
                 std::size_t recordIndex);
    /// To be called at the end: whether what the file says of its QSOs as a whole is so.
    void finish();

  private:
    /// A number that the file claims, and where.
    struct Claim {
        std::string_view line;
        std::int64_t number = 0;
    };

    void addPoints(std::string_view rest);
    void finishClaim(std::string_view field, const std::optional<Claim>& claim, std::int64_t found);

    ReadingNotes& report;
    bool isInRemarks = false;
    std::optional<Claim> declaredCount;  ///< Of all QSO sections, at the first.
    std::optional<Claim> claimedCount;
    std::optional<Claim> claimedPoints;
    std::int64_t lineCount = 0;
    std::int64_t duplicateCount = 0;
    std::int64_t points = 0;
    bool haveAllPoints = true;
};

}  // namespace tallyrig
