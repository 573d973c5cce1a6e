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
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace tallyrig {

class LogWork;

/// Looks for the QSOs of one log after the other in the logs of the others. Belongs to one thread, whose
/// memory it uses again for each log. Refers to the logs, the index and the options.
class LogCrossCheck {
  public:
    LogCrossCheck(const CrossCheckIndex& index, std::span<const CrossCheckLog> logs,
                  const CrossCheckOptions& options);

    /// One finding for each record of the log at `position`, in their order. Once `work` is cancelled the
    /// others say nothing.
    CrossCheckReport::Findings findings(std::size_t position, const LogWork& work);

  private:
    using Number = CrossCheckIndex::Number;
    using QSO = CrossCheckIndex::QSO;

    /// So many QSOs are looked up while those before them are judged, so that the memory can fetch at one go
    /// what will be read: the records lie scattered over all logs.
    static constexpr std::size_t blockSize = 16;
    /// What is looked up of a QSO before.
    struct Outlook {
        Number station = CrossCheckIndex::none;  ///< Whose logs have to hold it; none if there is no log.
        CallHolders::Range range;
        std::optional<CallHolders::Hit> hit;
    };

    void turnTo(std::size_t position);
    void lookAhead(std::span<const QSO> qsos, std::span<Outlook> outlooks);
    void evaluate(const QSO& qso, const Outlook& outlook, CrossCheckFinding& finding);
    // What may have become of a QSO, one after the other; false where it has not.
    bool isInLog(const QSO& qso, const Outlook& outlook, CrossCheckFinding& finding);
    bool isUnderMistypedOwnCall(const QSO& qso, Number station, CrossCheckFinding& finding);
    bool isWithLikeCall(const QSO& qso, CrossCheckFinding& finding);

    // What is said of a QSO whose counterpart was found.
    void matched(bool haveTimes, CrossCheckFinding& finding);
    void matchedLate(std::int64_t minutesApart, CrossCheckFinding& finding);
    void matchedElsewhere(const QSO& qso, const QSO& other, CrossCheckFinding& finding);
    void addSuffixNotes(CrossCheckFinding& finding);
    /// Enters the QSO found, and reads it.
    void setCounterpart(Number number, CrossCheckFinding& finding);
    void setCounterpart(Number number, Number otherLog, const RecordStorage& record,
                        CrossCheckFinding& finding);

    bool isUsed(const RecordStorage& record) const { return used.contains(record.id()); }

    const CrossCheckIndex& index;
    std::span<const CrossCheckLog> logs;
    const CrossCheckOptions& options;

    // Of the log at hand.
    const CrossCheckIndex::Log* log = nullptr;
    Number ownBase = 0;
    std::string owner;  ///< Trimmed.
    CallHolders holders;
    RecordIDSet used;  ///< The records of others that vouch for a QSO.
    QSOValues own;     ///< Of the record at hand.
    QSOValues others;  ///< Of its counterpart.
    std::string callBuffer;
};

}  // namespace tallyrig
