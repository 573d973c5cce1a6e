#pragma once

#include "Tallyrig/CrossCheck/CallHolders.h"
#include "Tallyrig/CrossCheck/CrossCheckFinding.h"
#include "Tallyrig/CrossCheck/CrossCheckIndex.h"
#include "Tallyrig/CrossCheck/CrossCheckLog.h"
#include "Tallyrig/CrossCheck/CrossCheckOptions.h"
#include "Tallyrig/CrossCheck/CrossCheckReport.h"
#include "Tallyrig/CrossCheck/QSOFields.h"
#include "Tallyrig/CrossCheck/RecordIDSet.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace tallyrig {

/// One pass over the QSOs of a log that looks for each of them in the logs of the others. Refers to the logs
/// and the index.
class LogCrossCheck {
  public:
    /// Of the log at `position`, which has records.
    LogCrossCheck(const CrossCheckIndex& index, std::span<const CrossCheckLog> logs, std::size_t position,
                  const CrossCheckOptions& options);

    /// One finding for each record, in their order. To be asked for once.
    CrossCheckReport::Findings findings();

  private:
    using Number = CrossCheckIndex::Number;
    using QSO = CrossCheckIndex::QSO;

    void evaluate(const QSO& qso, CrossCheckFinding& finding);
    // What may have become of a QSO, one after the other; false where it has not.
    bool isInLog(const QSO& qso, Number station, CrossCheckFinding& finding);
    bool isUnderMistypedOwnCall(const QSO& qso, Number station, CrossCheckFinding& finding);
    bool isWithLikeCall(const QSO& qso, CrossCheckFinding& finding);

    // What is said of a QSO whose counterpart was found.
    void matched(const QSO& qso, const QSO& other, CrossCheckFinding& finding);
    void matchedLate(std::int64_t minutesApart, CrossCheckFinding& finding);
    void matchedElsewhere(const QSO& qso, const QSO& other, CrossCheckFinding& finding);
    void addSuffixNotes(CrossCheckFinding& finding);
    /// Enters the QSO found, and reads it.
    void setCounterpart(Number number, CrossCheckFinding& finding);

    bool isUsed(const QSO& qso) const { return used.contains(qso.record->id()); }

    const CrossCheckIndex& index;
    std::span<const CrossCheckLog> logs;
    const CrossCheckOptions& options;
    const CrossCheckLog& log;
    const CrossCheckIndex::Log& indexed;
    Number ownBase;
    bool hasOwner;
    std::string owner;  ///< Trimmed.

    CallHolders holders;
    RecordIDSet used;  ///< The records of others that vouch for a QSO.
    QSOValues own;     ///< Of the record at hand.
    QSOValues others;  ///< Of its counterpart.
    std::string callBuffer;
};

}  // namespace tallyrig
