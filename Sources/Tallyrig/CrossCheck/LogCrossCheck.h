// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/CrossCheck/CallHolders.h"
#include "Tallyrig/CrossCheck/Candidates.h"
#include "Tallyrig/CrossCheck/CrossCheckFinding.h"
#include "Tallyrig/CrossCheck/CrossCheckIndex.h"
#include "Tallyrig/CrossCheck/CrossCheckLog.h"
#include "Tallyrig/CrossCheck/CrossCheckOptions.h"
#include "Tallyrig/CrossCheck/CrossCheckReport.h"
#include "Tallyrig/CrossCheck/NumberSet.h"
#include "Tallyrig/CrossCheck/QSOFields.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>

namespace tallyrig {

class LogWork;

/// Looks for the QSOs of one log after the other in the logs of the others. Belongs to one thread, whose
/// memory it uses again for each log. Refers to the logs, the index and the options.
class LogCrossCheck {
  public:
    LogCrossCheck(const CrossCheckIndex& index, std::span<const CrossCheckLog> logs,
                  const CrossCheckOptions& options);

    /// Completes the findings of the log at `position`, which has records. Once `work` is cancelled the
    /// others stay as they are.
    void judge(std::size_t position, CrossCheckReport::Findings& findings, const LogWork& work);

  private:
    using Number = CrossCheckIndex::Number;
    using QSO = CrossCheckIndex::QSO;

    /// What one station may have logged under the own call, mistyped.
    struct Mistyped {
        std::size_t visited = 0;  ///< How many were looked at one by one.
        std::optional<Candidates> candidates;
    };

    void turnTo(std::size_t position);
    void evaluate(Number number, CrossCheckFinding& finding);
    // What may have become of a QSO, one after the other; false where it has not.
    bool isInLog(const QSO& qso, Number station, CrossCheckFinding& finding);
    bool isUnderMistypedOwnCall(const QSO& qso, Number station, CrossCheckFinding& finding);
    bool isWithLikeCall(const QSO& qso, CrossCheckFinding& finding);

    /// The QSO of a station that may stand for `qso`, `none` if there is none.
    Number nearestMistyped(const QSO& qso, Number station);
    Candidates mistypedBy(Number station) const;

    // What is said of a QSO whose counterpart was found.
    void matched(const QSO& qso, const CrossCheckIndex::Holder& other, CrossCheckFinding& finding);
    void matchedLate(const QSO& qso, const CallHolders::Hit& hit, CrossCheckFinding& finding);
    void matchedElsewhere(const QSO& qso, const QSO& other, CrossCheckFinding& finding) const;
    void addSuffixNotes(CrossCheckFinding& finding);
    void setCounterpart(Number number, Number otherLog, CrossCheckFinding& finding) const;
    /// Of `qso` and of its counterpart.
    void readRecords(const QSO& qso, Number number, Number otherLog);

    bool isUsed(Number number) const { return used.contains(index.recordNumber(number)); }
    void use(Number number) { used.insert(index.recordNumber(number)); }

    const CrossCheckIndex& index;
    std::span<const CrossCheckLog> logs;
    const CrossCheckOptions& options;

    // Of the log at hand.
    const CrossCheckIndex::Log* log = nullptr;
    Number ownBase = 0;
    std::string owner;  ///< Trimmed.
    CallHolders holders;
    std::unordered_map<Number, Mistyped> mistyped;  ///< By station, where there is much to look at.
    NumberSet used;                                 ///< The records of others that vouch for a QSO.
    QSOValues own;                                  ///< Of a record that was read.
    QSOValues others;
};

}  // namespace tallyrig
