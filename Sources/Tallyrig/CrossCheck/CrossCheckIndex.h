// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/CrossCheck/CallDistance.h"
#include "Tallyrig/CrossCheck/CrossCheckLog.h"
#include "Tallyrig/CrossCheck/CrossCheckOptions.h"
#include "Tallyrig/CrossCheck/CrossCheckReport.h"
#include "Tallyrig/CrossCheck/QSOFields.h"
#include "Tallyrig/CrossCheck/SpotTime.h"
#include "Tallyrig/Log/UUID.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tallyrig {

class KeyNumbers;
class LogWork;

/// All QSOs of a cross-check, with what they are matched by as numbers, and the ways to find them.
///
/// QSOs are numbered station by station, the stations in the text order of their base calls, within one in
/// the order of its logs and records. So the number tells the station, and of two QSOs the one that comes
/// first wherever order counts. The logs without an owner stand behind all stations, as if they were one that
/// nobody can look up. Refers to the logs.
class CrossCheckIndex {
  public:
    using Number = std::uint32_t;

    static constexpr Number none = std::numeric_limits<Number>::max();
    struct QSO {
        std::int64_t minutes = noTime;
        std::uint64_t received = 0;  ///< What tells at once that a match is right (`exchangeWord`).
        const RecordStorage* record = nullptr;
        Number base = 0;   ///< The base call worked.
        Number place = 0;  ///< Band and mode category.
    };
    /// A QSO as the station sees it whose call it holds.
    struct Holder {
        SpotTime spotTime;
        std::uint64_t sent = 0;  ///< The other side of `received`.
        Number number = 0;
        Number log = 0;
    };
    /// A QSO with a call that no log is of.
    struct Stray {
        SpotTime spotTime;
        Number base = 0;
        Number number = 0;
    };
    /// One with records.
    struct Log {
        UUID id;
        Number begin = 0;  ///< The number of its first QSO.
        Number station = 0;
        std::size_t position = 0;  ///< In the input.
        QSOFields fields;
        bool isOwnerPlain = false;  ///< Its owner's call is the base call as it stands, or it has none.
    };
    /// One or several logs of one base call, which hold a QSO at least.
    struct Station {
        std::string call;  ///< The base call as its first log has it.
        Number base = 0;   ///< The number of that.
        Number begin = 0;  ///< Its QSOs.
        Number end = 0;
    };
    struct Place {
        std::string band;
        std::string mode;
    };

    /// Reads the records once: `findings` become a list for each log with what a record says by itself, its
    /// id, log, index and call. Empty in part if the work is cancelled.
    CrossCheckIndex(std::span<const CrossCheckLog> logs, const CrossCheckOptions& options,
                    std::vector<CrossCheckReport::Findings>& findings, LogWork& work);

    const QSO& qso(Number number) const { return qsos[number]; }
    /// The log at a position of the input; it has records.
    const Log& logAt(std::size_t position) const { return logs[logsByPosition[position]]; }
    /// By number; those of one station follow on each other.
    const Log& log(Number number) const { return logs[number]; }
    Number stationOfLog(Number log) const { return stationsByLog[log]; }
    /// The log that a QSO stands in. Cost: a binary search.
    Number logOf(Number qso) const;
    /// Those with a call in text order, then the one of the logs without an owner, if there are any.
    const Station& station(Number number) const { return stations[number]; }
    std::size_t stationCount() const { return stations.size(); }
    const Place& place(Number number) const { return places[number]; }
    /// What of the place has to agree: equal for QSOs on one band (and in one mode).
    SpotTime::Spot spotOf(const QSO& qso) const { return spots[qso.place]; }

    /// The station whose base call this is, `none` if no log is of that call.
    Number stationOf(Number base) const { return stationsByBase[base]; }
    bool isEmptyCall(Number base) const { return base == emptyCall; }
    /// Whether one of two base calls may be the other one mistyped.
    bool areAlike(Number base, Number other) const;
    /// How many stations hold QSOs with a base call.
    std::size_t stationsHolding(Number base) const { return holderCounts[base]; }
    /// The same for all QSOs of one record, which may stand in several logs; else for none.
    Number recordNumber(Number qso) const { return twins.empty() ? qso : twins[qso]; }

    /// The QSOs with a base call in ascending order of their numbers.
    std::span<const Holder> holders(Number base) const {
        return std::span(byBase).subspan(baseBegins[base], baseBegins[base + 1] - baseBegins[base]);
    }
    /// Those of one station with a call, but no other station's, by spot, time and number.
    std::span<const Stray> strays(Number station) const { return straysByStation[station]; }
    /// The first QSO of a station with a base call that it holds.
    Number firstHolder(Number base, const Station& station) const;

  private:
    class Names;
    /// Which numbers of all take the place of those of one thread.
    struct Renumbering {
        std::vector<Number> bases;
        std::vector<Number> places;
    };
    /// By number of the QSO; what of it is not kept.
    using SentWords = std::vector<std::uint64_t>;

    void arrangeStations();
    void readQSOs(const CrossCheckOptions& options, std::vector<CrossCheckReport::Findings>& findings,
                  SentWords& sent, LogWork& work);
    void readLog(Log& log, const CrossCheckOptions& options, Names& names,
                 CrossCheckReport::Findings& findings, SentWords& sent);
    void setBases(const KeyNumbers& all);
    void setPlaces(const KeyNumbers& all, bool compareMode);
    void renumber(std::span<QSO> own, const Renumbering& numbers) const;
    void findTwins(const std::vector<CrossCheckReport::Findings>& findings);
    void addHolders(const SentWords& sent);
    void addStrays(const LogWork& work);

    std::span<const CrossCheckLog> input;
    std::size_t mostDistance;
    bool isAnyAlike;

    QSOFields::Tables fieldTables;
    std::vector<Log> logs;  ///< By station.
    std::vector<std::size_t> logsByPosition;
    std::vector<Number> stationsByLog;
    std::vector<Station> stations;
    std::vector<QSO> qsos;
    std::vector<Number> twins;  ///< By number of the QSO, the first of its record; empty if all are.
    std::vector<std::vector<Stray>> straysByStation;

    // By number of a base call.
    std::vector<std::string> bases;
    std::vector<CallShape> shapes;
    std::vector<Number> stationsByBase;
    std::vector<Number> holderCounts;
    std::vector<Number> baseBegins;  ///< Places in `byBase`, and its end.
    std::vector<Holder> byBase;
    Number emptyCall = none;
    std::vector<Place> places;
    std::vector<SpotTime::Spot> spots;  ///< By place.
};

}  // namespace tallyrig
