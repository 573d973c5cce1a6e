#pragma once

#include "Tallyrig/CrossCheck/CallDistance.h"
#include "Tallyrig/CrossCheck/CrossCheckLog.h"
#include "Tallyrig/CrossCheck/CrossCheckOptions.h"
#include "Tallyrig/CrossCheck/QSOFields.h"
#include "Tallyrig/CrossCheck/TimeWindow.h"
#include "Tallyrig/Log/RecordStorage.h"
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
        const RecordStorage* record = nullptr;
        Number base = 0;   ///< The base call worked.
        Number place = 0;  ///< Band and mode category.
        Number spot = 0;   ///< What of the place has to agree: equal for QSOs on one band (and in one mode).
        Number log = 0;    ///< The position of the log in the input.
    };
    struct Log {
        UUID id;
        Number station = 0;
        Number begin = 0;  ///< The number of its first QSO.
        QSOFields fields;
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

    /// Empty in part if the work is cancelled.
    CrossCheckIndex(std::span<const CrossCheckLog> logs, const CrossCheckOptions& options, LogWork& work);

    const QSO& qso(Number number) const { return qsos[number]; }
    std::span<const QSO> qsosFrom(Number first, std::size_t count) const {
        return std::span(qsos).subspan(first, count);
    }
    /// By position in the input.
    const Log& log(std::size_t position) const { return logs[position]; }
    /// Those with a call in text order, then the one of the logs without an owner, if there are any.
    const Station& station(Number number) const { return stations[number]; }
    const Place& place(Number number) const { return places[number]; }

    /// The station whose base call this is, `none` if no log is of that call.
    Number stationOf(Number base) const { return stationsByBase[base]; }
    /// The station that a QSO is of.
    Number stationOfQSO(Number qso) const;
    bool isEmptyCall(Number base) const { return base == emptyCall; }
    /// Whether one of two base calls may be the other one mistyped.
    bool areAlike(Number base, Number other) const;
    /// How many stations hold QSOs with a base call.
    std::size_t stationsHolding(Number base) const { return holderCounts[base]; }

    /// The QSOs with a base call in ascending order.
    std::span<const Number> holders(Number base) const {
        return std::span(byBase).subspan(baseBegins[base], baseBegins[base + 1] - baseBegins[base]);
    }
    /// The QSOs of a station in the order of time, those of one time in ascending order.
    std::span<const Number> inTimeOrder(const Station& station) const {
        return std::span(byTime).subspan(station.begin, station.end - station.begin);
    }

  private:
    class Names;
    /// Which numbers of all take the place of those of one thread.
    struct Renumbering {
        std::vector<Number> bases;
        std::vector<Number> places;
    };

    void arrangeStations(std::span<const CrossCheckLog> input);
    void readQSOs(std::span<const CrossCheckLog> input, bool compareMode, LogWork& work);
    void readLog(const CrossCheckLog& input, std::size_t position, Names& names);
    void setBases(const KeyNumbers& all);
    void setPlaces(const KeyNumbers& all, bool compareMode);
    void renumber(std::span<QSO> own, const Renumbering& numbers) const;
    void addHolders();
    void sortByTime(const LogWork& work);

    std::size_t mostDistance;
    bool isAnyAlike;

    QSOFields::Tables fieldTables;
    std::vector<Log> logs;
    std::vector<Station> stations;
    std::vector<Number> stationBegins;  ///< Their first QSOs.
    std::vector<QSO> qsos;
    std::vector<Number> byTime;

    // By number of a base call.
    std::vector<std::string> bases;
    std::vector<CallShape> shapes;
    std::vector<Number> stationsByBase;
    std::vector<Number> holderCounts;
    std::vector<Number> baseBegins;  ///< Places in `byBase`, and its end.
    std::vector<Number> byBase;
    Number emptyCall = none;
    std::vector<Place> places;
    std::vector<Number> spots;  ///< By place.
};

}  // namespace tallyrig
