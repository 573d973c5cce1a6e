// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ReadingNotes.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tallyrig {

/// What is to be said of a Cabrillo log besides its QSOs. The reader tells it the lines that it met: first
/// the header, then the QSOs, both in the order of the file.
class CabrilloNotes {
  public:
    /// Lines and columns told to it refer to the text of `reportForIt`; both outlive this.
    explicit CabrilloNotes(ReadingNotes& reportForIt) : report(reportForIt) {}

    /// A line, trimmed, that is no QSO; `key` as of a header, in upper case, absent if it has none.
    void tellLine(std::string_view line, std::optional<std::string_view> key);
    /// `line` replaces a value of the header that is part of all QSOs.
    void tellReplaced(std::string_view line, std::string_view key, std::string_view before,
                      std::string_view now) {
        report.addReplaced(line, key, before, now);
    }
    /// A QSO line, trimmed, with too few columns.
    void tellShort(std::string_view line);
    /// A QSO that was read, with the call in it as its line has it and that of its own station.
    void tellQSO(std::string_view line, std::string_view call, std::string_view ownCall,
                 std::size_t recordIndex) {
        ++qsoCount;
        if (!isPlainCall(call) || call == ownCall) {
            tellDoubtful({line, call, recordIndex}, ownCall);
        }
    }
    /// To be called at the end: what depends on how many QSOs are like that.
    void finish();

  private:
    /// A QSO in which something is wrong, kept until it is known whether it is so in most.
    struct DoubtfulQSO {
        std::string_view line;
        std::string_view call;
        std::size_t recordIndex = 0;
    };
    struct Doubtful {
        std::vector<DoubtfulQSO> qsos;  ///< No more than a report has room for.
        std::size_t count = 0;

        void add(const DoubtfulQSO& qso);
    };

    /// Whether the call surely looks like one: capital letters and digits, a letter last, and no locator.
    /// Others may too.
    static bool isPlainCall(std::string_view call);
    void tellDoubtful(const DoubtfulQSO& qso, std::string_view ownCall);
    void finishShortLines();
    void finishCalls();

    ReadingNotes& report;
    bool isInLog = false;
    std::size_t qsoCount = 0;
    Doubtful shortLines;
    Doubtful calls;
    Doubtful locators;  ///< QSOs whose call may be one or a locator, which is told by how many there are.
};

}  // namespace tallyrig
