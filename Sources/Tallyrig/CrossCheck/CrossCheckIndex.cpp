#include "Tallyrig/CrossCheck/CrossCheckIndex.h"

#include "Tallyrig/CrossCheck/BaseCall.h"
#include "Tallyrig/CrossCheck/LogWork.h"
#include "Tallyrig/CrossCheck/ModeCategory.h"
#include "Tallyrig/CrossCheck/QSOTime.h"
#include "Tallyrig/Text/KeyNumbers.h"
#include "Tallyrig/Text/Numbers.h"
#include "Tallyrig/Text/Text.h"

#include <oneapi/tbb/enumerable_thread_specific.h>

#include <algorithm>
#include <map>
#include <numeric>
#include <utility>

namespace tallyrig {

namespace {

CrossCheckIndex::Number numberOf(KeyNumbers& keys, std::string_view text) {
    const std::size_t number =
        text::isASCII(text) ? keys.add(text).number : keys.add(text::canonicalKey(text)).number;
    return static_cast<CrossCheckIndex::Number>(number);
}

/// Band and mode category in one text, with the length of the band in front so that none is taken for
/// another.
std::string placeKey(std::string_view band, std::string_view mode) {
    const std::string bandKey = text::canonicalKey(text::upper(text::trimmedOfBlanks(band)));
    return std::to_string(bandKey.size()) + ':' + bandKey + text::canonicalKey(modeCategory(mode));
}

CrossCheckIndex::Place placeOf(std::string_view key) {
    const std::size_t colon = key.find(':');
    const auto bandSize = static_cast<std::size_t>(text::integer(key.substr(0, colon)).value_or(0));
    return {std::string(key.substr(colon + 1, bandSize)), std::string(key.substr(colon + 1 + bandSize))};
}

/// The numbers that `all` has for the keys of `own`, added where they are new.
std::vector<CrossCheckIndex::Number> numbersIn(KeyNumbers& all, const KeyNumbers& own) {
    std::vector<CrossCheckIndex::Number> numbers(own.size());
    for (std::size_t number = 0; number < own.size(); ++number) {
        numbers[number] = static_cast<CrossCheckIndex::Number>(all.add(own.keyOf(number)).number);
    }
    return numbers;
}

}  // namespace

/// Numbers for the calls and places that one thread comes across. Refers to the records that it has read.
class CrossCheckIndex::Names {
  public:
    Number base(std::string_view call) { return numberOf(bases, baseCall(call, buffer)); }

    Number place(std::string_view band, std::string_view mode) {
        // Most QSOs are on the band of the one before.
        if (places.size() == 0 || band != lastBand || mode != lastMode) {
            lastBand = band;
            lastMode = mode;
            lastPlace = static_cast<Number>(places.add(placeKey(band, mode)).number);
        }
        return lastPlace;
    }

    KeyNumbers bases;
    KeyNumbers places;

  private:
    std::string buffer;
    std::string_view lastBand;
    std::string_view lastMode;
    Number lastPlace = 0;
};

CrossCheckIndex::CrossCheckIndex(std::span<const CrossCheckLog> input, const CrossCheckOptions& options,
                                 LogWork& work)
    : mostDistance(static_cast<std::size_t>(std::max<std::int64_t>(options.maxCallDistance, 0))),
      isAnyAlike(options.maxCallDistance >= 0) {
    arrangeStations(input);
    readQSOs(input, options.compareMode, work);
    if (!work.isCancelled()) {
        addHolders();
        sortByTime(work);
    }
}

CrossCheckIndex::Number CrossCheckIndex::stationOfQSO(Number qso) const {
    return static_cast<Number>(std::ranges::upper_bound(stationBegins, qso) - stationBegins.begin() - 1);
}

bool CrossCheckIndex::areAlike(Number base, Number other) const {
    return isAnyAlike && shapes[base].leastDistance(shapes[other]) <= mostDistance &&
           isWithinCallDistance(bases[base], bases[other], mostDistance);
}

void CrossCheckIndex::arrangeStations(std::span<const CrossCheckLog> input) {
    struct Logs {
        std::string call;
        std::vector<std::size_t> positions;
    };
    std::map<std::string, Logs> byCall;
    Logs withoutOwner;
    for (std::size_t position = 0; position < input.size(); ++position) {
        if (input[position].document.records().empty()) {
            continue;
        }
        const std::string call = baseCall(input[position].owner);
        Logs& group = call.empty() ? withoutOwner : byCall[text::canonicalKey(call)];
        if (group.positions.empty()) {
            group.call = call;
        }
        group.positions.push_back(position);
    }

    logs.resize(input.size());
    Number next = 0;
    const auto addStation = [&](Logs& group) {
        const auto number = static_cast<Number>(stations.size());
        const Number begin = next;
        for (const std::size_t position : group.positions) {
            const ADIFRecordList& records = input[position].document.records();
            logs[position] = {input[position].id, number, next,
                              QSOFields(records[0].stored().tags(), fieldTables)};
            next += static_cast<Number>(records.size());
        }
        stations.push_back({std::move(group.call), 0, begin, next});
        stationBegins.push_back(begin);
    };
    for (auto& [key, group] : byCall) {
        addStation(group);
    }
    if (!withoutOwner.positions.empty()) {
        addStation(withoutOwner);
    }
    qsos.resize(next);
}

void CrossCheckIndex::readQSOs(std::span<const CrossCheckLog> input, bool compareMode, LogWork& work) {
    // Each thread numbers names for itself; afterwards all take the numbers of one list.
    tbb::enumerable_thread_specific<Names> namesByThread;
    std::vector<const Names*> namesOfLog(input.size());
    work.forEach(input.size(), [&](std::size_t position) {
        Names& names = namesByThread.local();
        namesOfLog[position] = &names;
        readLog(input[position], position, names);
        work.addDone(input[position].document.records().size());
    });
    if (work.isCancelled()) {
        return;
    }
    KeyNumbers allBases;
    KeyNumbers allPlaces;
    std::map<const Names*, Renumbering> renumberings;
    for (const Names& names : namesByThread) {
        renumberings[&names] = {numbersIn(allBases, names.bases), numbersIn(allPlaces, names.places)};
    }
    for (Station& station : stations) {
        station.base = numberOf(allBases, station.call);
    }
    setBases(allBases);
    setPlaces(allPlaces, compareMode);
    work.forEach(input.size(), [&](std::size_t position) {
        renumber(std::span(qsos).subspan(logs[position].begin, input[position].document.records().size()),
                 renumberings.at(namesOfLog[position]));
    });
}

void CrossCheckIndex::readLog(const CrossCheckLog& input, std::size_t position, Names& names) {
    const ADIFRecordList& records = input.document.records();
    if (records.empty()) {
        return;
    }
    Log& log = logs[position];
    QSOValues values;
    bool areAllExpected = true;
    QSO* qso = &qsos[log.begin];
    for (const ADIFRecord& record : records) {
        log.fields.read(record.stored(), values);
        areAllExpected = areAllExpected && log.fields.expects(record.stored());
        qso->minutes = minutesOf(values[QSOField::date], values[QSOField::time]).value_or(noTime);
        qso->record = &record.stored();
        qso->base = names.base(values[QSOField::call]);
        qso->place = names.place(values[QSOField::band], values[QSOField::mode]);
        qso->log = static_cast<Number>(position);
        ++qso;
    }
    if (areAllExpected) {
        log.fields.expectAll();
    }
}

void CrossCheckIndex::setBases(const KeyNumbers& all) {
    stationsByBase.assign(all.size(), none);
    for (std::size_t number = 0; number < all.size(); ++number) {
        bases.emplace_back(all.keyOf(number));
        shapes.emplace_back(bases.back());
        if (bases.back().empty()) {
            emptyCall = static_cast<Number>(number);
        }
    }
    for (std::size_t number = 0; number < stations.size(); ++number) {
        if (!isEmptyCall(stations[number].base)) {
            stationsByBase[stations[number].base] = static_cast<Number>(number);
        }
    }
}

void CrossCheckIndex::setPlaces(const KeyNumbers& all, bool compareMode) {
    KeyNumbers bands;
    for (std::size_t number = 0; number < all.size(); ++number) {
        places.push_back(placeOf(all.keyOf(number)));
        spots.push_back(static_cast<Number>(compareMode ? number : bands.add(places.back().band).number));
    }
}

void CrossCheckIndex::renumber(std::span<QSO> own, const Renumbering& numbers) const {
    for (QSO& qso : own) {
        qso.base = numbers.bases[qso.base];
        qso.place = numbers.places[qso.place];
        qso.spot = spots[qso.place];
    }
}

void CrossCheckIndex::addHolders() {
    baseBegins.assign(bases.size() + 1, 0);
    holderCounts.assign(bases.size(), 0);
    std::vector<Number> lastStation(bases.size(), none);
    for (std::size_t station = 0; station < stations.size(); ++station) {
        for (Number number = stations[station].begin; number < stations[station].end; ++number) {
            const Number base = qsos[number].base;
            ++baseBegins[base + 1];
            holderCounts[base] += lastStation[base] == station ? 0 : 1;
            lastStation[base] = static_cast<Number>(station);
        }
    }
    std::partial_sum(baseBegins.begin(), baseBegins.end(), baseBegins.begin());
    byBase.resize(qsos.size());
    std::vector<Number> next(baseBegins.begin(), baseBegins.end() - 1);
    for (std::size_t number = 0; number < qsos.size(); ++number) {
        byBase[next[qsos[number].base]++] = static_cast<Number>(number);
    }
}

void CrossCheckIndex::sortByTime(const LogWork& work) {
    byTime.resize(qsos.size());
    work.forEach(stations.size(), [&](std::size_t number) {
        const Station& station = stations[number];
        const auto own = std::span(byTime).subspan(station.begin, station.end - station.begin);
        std::iota(own.begin(), own.end(), station.begin);
        const auto isEarlier = [&](Number left, Number right) {
            return std::pair(qsos[left].minutes, left) < std::pair(qsos[right].minutes, right);
        };
        // Most logs are in the order of time already.
        if (!std::ranges::is_sorted(own, isEarlier)) {
            std::ranges::sort(own, isEarlier);
        }
    });
}

}  // namespace tallyrig
