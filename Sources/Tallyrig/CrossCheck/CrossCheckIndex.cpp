// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/CrossCheck/CrossCheckIndex.h"

#include "Tallyrig/CrossCheck/BaseCall.h"
#include "Tallyrig/CrossCheck/ExchangeWord.h"
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
#include <unordered_map>
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
    /// A base call whose number is asked for later (`nextBase`), in its turn.
    void enqueueBase(std::string_view call) {
        if (text::isASCII(call)) {
            bases.append(call);
        } else {
            bases.append(text::canonicalKey(call));
        }
        bases.enqueue();
    }
    Number nextBase() { return static_cast<Number>(bases.addNext().number); }

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
    std::string_view lastBand;
    std::string_view lastMode;
    Number lastPlace = 0;
};

CrossCheckIndex::CrossCheckIndex(std::span<const CrossCheckLog> allLogs, const CrossCheckOptions& options,
                                 std::vector<CrossCheckReport::Findings>& findings, LogWork& work)
    : input(allLogs),
      mostDistance(static_cast<std::size_t>(std::max<std::int64_t>(options.maxCallDistance, 0))),
      isAnyAlike(options.maxCallDistance >= 0) {
    findings.clear();
    findings.resize(input.size());
    arrangeStations();
    SentWords sent(qsos.size());
    readQSOs(options, findings, sent, work);
    if (!work.isCancelled()) {
        findTwins(findings);
        addHolders(sent);
        addStrays(work);
    }
}

CrossCheckIndex::Number CrossCheckIndex::logOf(Number qso) const {
    return static_cast<Number>(std::ranges::upper_bound(logs, qso, {}, &Log::begin) - logs.begin() - 1);
}

CrossCheckIndex::Number CrossCheckIndex::firstHolder(Number base, const Station& station) const {
    return std::ranges::lower_bound(holders(base), station.begin, {}, &Holder::number)->number;
}

bool CrossCheckIndex::areAlike(Number base, Number other) const {
    return isAnyAlike && shapes[base].leastDistance(shapes[other]) <= mostDistance &&
           isWithinCallDistance(bases[base], bases[other], mostDistance);
}

void CrossCheckIndex::arrangeStations() {
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

    logsByPosition.resize(input.size());
    Number next = 0;
    const auto addStation = [&](Logs& group) {
        const auto number = static_cast<Number>(stations.size());
        stations.push_back({std::move(group.call), 0, next, next});
        for (const std::size_t position : group.positions) {
            const ADIFRecordList& records = input[position].document.records();
            const std::string owner = text::upper(text::trimmedOfBlanks(input[position].owner));
            logsByPosition[position] = logs.size();
            logs.push_back({input[position].id, next, number, position,
                            QSOFields(records[0].stored().tags(), fieldTables),
                            owner.empty() || text::equal(owner, stations.back().call)});
            stationsByLog.push_back(number);
            next += static_cast<Number>(records.size());
        }
        stations.back().end = next;
    };
    for (auto& [key, group] : byCall) {
        addStation(group);
    }
    if (!withoutOwner.positions.empty()) {
        addStation(withoutOwner);
    }
    qsos.resize(next);
}

void CrossCheckIndex::readQSOs(const CrossCheckOptions& options,
                               std::vector<CrossCheckReport::Findings>& findings, SentWords& sent,
                               LogWork& work) {
    // Each thread numbers names for itself; afterwards all take the numbers of one list.
    tbb::enumerable_thread_specific<Names> namesByThread;
    std::vector<const Names*> namesOfLog(logs.size());
    work.forEach(logs.size(), [&](std::size_t number) {
        Log& log = logs[number];
        Names& names = namesByThread.local();
        namesOfLog[number] = &names;
        readLog(log, options, names, findings[log.position], sent);
        work.addDone(findings[log.position].size());
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
    setPlaces(allPlaces, options.compareMode);
    work.forEach(logs.size(), [&](std::size_t number) {
        const Log& log = logs[number];
        renumber(std::span(qsos).subspan(log.begin, findings[log.position].size()),
                 renumberings.at(namesOfLog[number]));
    });
}

void CrossCheckIndex::readLog(Log& log, const CrossCheckOptions& options, Names& names,
                              CrossCheckReport::Findings& findings, SentWords& sent) {
    const ADIFRecordList& records = input[log.position].document.records();
    const std::string& ownCall = stations[log.station].call;
    findings.resize(records.size());
    constexpr Number blockSize = 32;
    QSOValues values;
    QSOClock clock;
    std::string callBuffer;
    std::string baseBuffer;
    std::string_view lastOwnCall;
    bool isOwnCallPlain = true;
    bool areAllExpected = true;
    Number number = log.begin;
    Number firstWaiting = number;
    const auto end = static_cast<Number>(log.begin + records.size());
    for (const ADIFRecord& record : records) {
        log.fields.read(record.stored(), values);
        areAllExpected = areAllExpected && log.fields.expects(record.stored());
        CrossCheckFinding& finding = findings[number - log.begin];
        finding.id = record.id();
        finding.logID = log.id;
        finding.index = number - log.begin;
        finding.call = text::upper(text::trimmedOfBlanks(values[QSOField::call]), callBuffer);
        const std::string_view base = baseCall(finding.call, baseBuffer);
        if (const std::string_view own = values[QSOField::stationCallsign]; own != lastOwnCall) {
            lastOwnCall = own;
            const std::string upper = text::upper(text::trimmedOfBlanks(own));
            isOwnCallPlain = upper.empty() || text::equal(upper, ownCall);
        }

        QSO& qso = qsos[number];
        qso.record = &record.stored();
        qso.minutes = clock.minutesOf(values[QSOField::date], values[QSOField::time]).value_or(noTime);
        names.enqueueBase(base);
        qso.place = names.place(values[QSOField::band], values[QSOField::mode]);
        // Where calls have additions, each match is looked at.
        const bool isCallPlain = base.size() == finding.call.size();
        qso.received = exchangeWord::unknownReceived;
        sent[number] = exchangeWord::unknownSent;
        if (isCallPlain && log.isOwnerPlain) {
            qso.received = options.checkExchange ? exchangeWord::ofReceived(values, options.checkRST) : 0;
        }
        if (isCallPlain && isOwnCallPlain) {
            sent[number] = options.checkExchange ? exchangeWord::ofSent(values, options.checkRST) : 0;
        }
        // The memory of the calls is slow to answer, so some are asked for at one go.
        if (++number - firstWaiting == blockSize || number == end) {
            for (; firstWaiting != number; ++firstWaiting) {
                qsos[firstWaiting].base = names.nextBase();
            }
        }
    }
    if (areAllExpected) {
        log.fields.expectAll();
    }
}

void CrossCheckIndex::setBases(const KeyNumbers& all) {
    stationsByBase.assign(all.size(), none);
    bases.reserve(all.size());
    shapes.reserve(all.size());
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
        spots.push_back(
            static_cast<SpotTime::Spot>(compareMode ? number : bands.add(places.back().band).number));
    }
}

void CrossCheckIndex::renumber(std::span<QSO> own, const Renumbering& numbers) const {
    for (QSO& qso : own) {
        qso.base = numbers.bases[qso.base];
        qso.place = numbers.places[qso.place];
    }
}

void CrossCheckIndex::findTwins(const std::vector<CrossCheckReport::Findings>& findings) {
    // As a rule the records of a log were made one after the other, and no other log's in between.
    std::vector<std::pair<UUID, UUID>> runs;
    bool areAllDifferent = true;
    for (const Log& log : logs) {
        const CrossCheckReport::Findings& own = findings[log.position];
        runs.emplace_back(own.front().id, own.back().id);
        areAllDifferent =
            areAllDifferent && std::ranges::is_sorted(own, std::less_equal<UUID>(), &CrossCheckFinding::id);
    }
    std::ranges::sort(runs);
    const auto overlap = [](const auto& left, const auto& right) { return left.second >= right.first; };
    if (areAllDifferent && std::ranges::adjacent_find(runs, overlap) == runs.end()) {
        return;
    }
    std::unordered_map<UUID, Number> numbers;
    twins.reserve(qsos.size());
    for (const Log& log : logs) {
        for (const CrossCheckFinding& finding : findings[log.position]) {
            twins.push_back(numbers.emplace(finding.id, static_cast<Number>(twins.size())).first->second);
        }
    }
}

void CrossCheckIndex::addHolders(const SentWords& sent) {
    baseBegins.assign(bases.size() + 1, 0);
    holderCounts.assign(bases.size(), 0);
    std::vector<Number> lastStation(bases.size(), none);
    for (Number station = 0; station < stations.size(); ++station) {
        for (Number number = stations[station].begin; number < stations[station].end; ++number) {
            const Number base = qsos[number].base;
            ++baseBegins[base + 1];
            holderCounts[base] += lastStation[base] == station ? 0 : 1;
            lastStation[base] = station;
        }
    }
    std::partial_sum(baseBegins.begin(), baseBegins.end(), baseBegins.begin());
    byBase.resize(qsos.size());
    std::vector<Number> next(baseBegins.begin(), baseBegins.end() - 1);
    Number log = 0;
    for (Number number = 0; number < qsos.size(); ++number) {
        log += log + 1 < logs.size() && logs[log + 1].begin == number ? 1 : 0;
        const QSO& qso = qsos[number];
        byBase[next[qso.base]++] = {SpotTime(spotOf(qso), qso.minutes), sent[number], number, log};
    }
}

void CrossCheckIndex::addStrays(const LogWork& work) {
    straysByStation.resize(stations.size());
    work.forEach(stations.size(), [&](std::size_t station) {
        std::vector<Stray> strays;
        for (Number number = stations[station].begin; number < stations[station].end; ++number) {
            const QSO& qso = qsos[number];
            if (stationOf(qso.base) == none && !isEmptyCall(qso.base)) {
                strays.push_back({SpotTime(spotOf(qso), qso.minutes), qso.base, number});
            }
        }
        std::ranges::sort(strays, {},
                          [](const Stray& stray) { return std::pair(stray.spotTime, stray.number); });
        straysByStation[station].assign(strays.begin(), strays.end());
    });
}

}  // namespace tallyrig
