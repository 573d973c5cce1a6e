#include "Tallyrig/CrossCheck/LogCrossCheck.h"

#include "Tallyrig/CrossCheck/LogWork.h"

#include "Tallyrig/CrossCheck/ExchangeCheck.h"
#include "Tallyrig/CrossCheck/TimeWindow.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <tuple>
#include <utility>

namespace tallyrig {

namespace {

std::string upperTrimmed(std::string_view text) {
    return text::upper(text::trimmedOfBlanks(text));
}

std::string orQuestionMark(std::string text) {
    return text.empty() ? "?" : text;
}

}  // namespace

LogCrossCheck::LogCrossCheck(const CrossCheckIndex& crossCheckIndex, std::span<const CrossCheckLog> allLogs,
                             const CrossCheckOptions& checkOptions)
    : index(crossCheckIndex), logs(allLogs), options(checkOptions), holders(crossCheckIndex) {}

CrossCheckReport::Findings LogCrossCheck::findings(std::size_t position, const LogWork& work) {
    turnTo(position);
    CrossCheckReport::Findings findings(logs[position].document.records().size());
    const auto block = [&](std::size_t begin) {
        return index.qsosFrom(log->begin + static_cast<Number>(begin),
                              std::min(blockSize, findings.size() - begin));
    };
    std::array<Outlook, blockSize> outlooks;
    std::array<Outlook, blockSize> nextOutlooks;
    lookAhead(block(0), nextOutlooks);
    for (std::size_t begin = 0; begin < findings.size() && !work.isCancelled(); begin += blockSize) {
        std::swap(outlooks, nextOutlooks);
        if (begin + blockSize < findings.size()) {
            lookAhead(block(begin + blockSize), nextOutlooks);
        }
        const auto qsos = block(begin);
        for (std::size_t place = 0; place < qsos.size(); ++place) {
            const QSO& qso = qsos[place];
            log->fields.read(*qso.record, own);
            CrossCheckFinding& finding = findings[begin + place];
            finding.id = qso.record->id();
            finding.logID = log->id;
            finding.index = begin + place;
            finding.call = text::upper(text::trimmedOfBlanks(own[QSOField::call]), callBuffer);
            evaluate(qso, outlooks[place], finding);
        }
    }
    return findings;
}

void LogCrossCheck::turnTo(std::size_t position) {
    log = &index.log(position);
    ownBase = index.station(log->station).base;
    owner = upperTrimmed(logs[position].owner);
    holders.turnTo(ownBase);
    used.clear(logs[position].document.records().size());
}

void LogCrossCheck::lookAhead(std::span<const QSO> qsos, std::span<Outlook> outlooks) {
    constexpr std::size_t cacheLine = 64;
    constexpr std::size_t usualRecordSize = 320;
    for (std::size_t place = 0; place < qsos.size(); ++place) {
        const QSO& qso = qsos[place];
        Outlook& outlook = outlooks[place];
        outlook = {};
        if (qso.base != ownBase) {
            outlook.station = index.stationOf(qso.base);
        }
        if (outlook.station != CrossCheckIndex::none) {
            outlook.range = holders.ofStation(outlook.station);
            outlook.hit = holders.nearest(outlook.range, qso);
        }
    }
    // One line of each after the other, for what takes longest is to find the page. (In a function of its own
    // this would do nothing that g++ can see, and be left out.)
    for (std::size_t at = 0; at < usualRecordSize; at += cacheLine) {
        for (std::size_t place = 0; place < qsos.size(); ++place) {
            __builtin_prefetch(reinterpret_cast<const char*>(qsos[place].record) + at);
            if (const auto& hit = outlooks[place].hit) {
                const CallHolders::Holder& other = holders[hit->place];
                __builtin_prefetch(reinterpret_cast<const char*>(other.record) + at);
                __builtin_prefetch(&index.log(other.log));
            }
        }
    }
}

void LogCrossCheck::evaluate(const QSO& qso, const Outlook& outlook, CrossCheckFinding& finding) {
    const bool hasOtherLog = outlook.station != CrossCheckIndex::none;
    if (hasOtherLog &&
        (isInLog(qso, outlook, finding) || isUnderMistypedOwnCall(qso, outlook.station, finding))) {
        return;
    }
    if (isWithLikeCall(qso, finding)) {
        return;
    }
    if (hasOtherLog) {
        finding.status = CrossCheckStatus::notInLog;
        return;
    }
    // The own station is one of those that hold the call.
    const std::size_t otherLogs = index.isEmptyCall(qso.base) ? 0 : index.stationsHolding(qso.base) - 1;
    finding.status = otherLogs == 0 ? CrossCheckStatus::unique : CrossCheckStatus::notCheckable;
    if (otherLogs > 0) {
        finding.notes.push_back("in " + std::to_string(otherLogs) + " weiteren Log(s)");
    }
}

bool LogCrossCheck::isInLog(const QSO& qso, const Outlook& outlook, CrossCheckFinding& finding) {
    std::optional<CallHolders::Hit> hit = outlook.hit;
    if (hit && !holders.isLeft(hit->place)) {
        hit = holders.nearest(outlook.range, qso);
    }
    // A record may stand in several logs and be used under another number.
    while (hit && isUsed(*holders[hit->place].record)) {
        holders.takeOut(hit->place);
        hit = holders.nearest(outlook.range, qso);
    }
    const bool isRegular = hit && hit->minutesApart <= options.timeToleranceMinutes;
    if (isRegular || (hit && hit->minutesApart <= options.extendedToleranceMinutes)) {
        const CallHolders::Holder& other = holders[hit->place];
        used.insert(other.record->id());
        holders.takeOut(hit->place);
        setCounterpart(other.number, other.log, *other.record, finding);
        if (isRegular) {
            matched(qso.minutes != noTime && other.minutes() != noTime, finding);
        } else {
            matchedLate(hit->minutesApart, finding);
        }
        return true;
    }

    hit = holders.nearestAnywhere(outlook.range, qso);
    while (hit && isUsed(*holders[hit->place].record)) {
        holders.takeOut(hit->place);
        hit = holders.nearestAnywhere(outlook.range, qso);
    }
    if (!hit || hit->minutesApart > options.timeToleranceMinutes) {
        return false;
    }
    // It is not used up: it may be the match of a QSO that comes later.
    const Number number = holders[hit->place].number;
    setCounterpart(number, finding);
    matchedElsewhere(qso, index.qso(number), finding);
    return true;
}

void LogCrossCheck::matched(bool haveTimes, CrossCheckFinding& finding) {
    addSuffixNotes(finding);
    if (!haveTimes) {
        finding.notes.emplace_back("Zeit nicht prüfbar");
    }
    finding.status = CrossCheckStatus::confirmed;
    if (options.checkExchange) {
        std::vector<std::string> mismatches = exchangeMismatches(own, others, options.checkRST);
        if (!mismatches.empty()) {
            finding.status = CrossCheckStatus::bustedExchange;
            std::ranges::move(mismatches, std::back_inserter(finding.notes));
        }
    }
}

void LogCrossCheck::matchedLate(std::int64_t minutesApart, CrossCheckFinding& finding) {
    finding.status = CrossCheckStatus::timeMismatch;
    finding.notes.push_back("Zeitdifferenz " + std::to_string(minutesApart) + " min");
    addSuffixNotes(finding);
}

void LogCrossCheck::matchedElsewhere(const QSO& qso, const QSO& other, CrossCheckFinding& finding) {
    finding.status = CrossCheckStatus::bandModeMismatch;
    const CrossCheckIndex::Place& place = index.place(qso.place);
    const CrossCheckIndex::Place& otherPlace = index.place(other.place);
    if (otherPlace.band != place.band) {
        finding.notes.push_back("bei Gegenstation auf " + orQuestionMark(text::lower(otherPlace.band)));
    }
    if (otherPlace.mode != place.mode) {
        finding.notes.push_back("bei Gegenstation in " + orQuestionMark(otherPlace.mode));
    }
}

bool LogCrossCheck::isUnderMistypedOwnCall(const QSO& qso, Number station, CrossCheckFinding& finding) {
    if (index.isEmptyCall(ownBase)) {
        return false;
    }
    // Of equals the one whose call comes first in the logs of the other station.
    using Rank = std::tuple<std::int64_t, Number, Number>;
    std::optional<Rank> best;
    const CrossCheckIndex::Station& other = index.station(station);
    const auto offer = [&](Number number) {
        const QSO& candidate = index.qso(number);
        const std::int64_t apart = minutesApart(candidate.minutes, qso.minutes);
        if (candidate.spot != qso.spot || (best && apart > std::get<0>(*best)) ||
            index.stationOf(candidate.base) != CrossCheckIndex::none || index.isEmptyCall(candidate.base) ||
            !index.areAlike(candidate.base, ownBase) || isUsed(*candidate.record)) {
            return;
        }
        const Rank rank = {apart, *std::ranges::lower_bound(index.holders(candidate.base), other.begin),
                           number};
        if (!best || rank < *best) {
            best = rank;
        }
    };
    visitAround(
        index.inTimeOrder(other), qso.minutes, options.timeToleranceMinutes,
        [&](Number number) { return index.qso(number).minutes; }, offer);
    if (!best) {
        return false;
    }
    const Number number = std::get<2>(*best);
    used.insert(index.qso(number).record->id());
    setCounterpart(number, finding);
    finding.status = CrossCheckStatus::confirmed;
    finding.notes.push_back("Gegenstation loggte dein Rufzeichen als " +
                            upperTrimmed(others[QSOField::call]));
    return true;
}

bool LogCrossCheck::isWithLikeCall(const QSO& qso, CrossCheckFinding& finding) {
    if (index.isEmptyCall(qso.base)) {
        return false;
    }
    // The first station in text order, even if the call of another is more alike.
    using Rank = std::tuple<Number, std::int64_t, Number>;
    std::optional<Rank> best;
    holders.visitAround(qso, options.timeToleranceMinutes, [&](const CallHolders::Holder& holder) {
        const Rank rank = {holder.station, minutesApart(holder.minutes(), qso.minutes), holder.number};
        if (best && rank > *best) {
            return;
        }
        const Number base = index.station(holder.station).base;
        if (base != qso.base && base != ownBase && !index.isEmptyCall(base) &&
            index.areAlike(base, qso.base)) {
            best = rank;
        }
    });
    if (!best) {
        return false;
    }
    setCounterpart(std::get<2>(*best), finding);
    finding.status = CrossCheckStatus::bustedCall;
    finding.notes.push_back("vermutlich " + index.station(std::get<0>(*best)).call);
    return true;
}

void LogCrossCheck::addSuffixNotes(CrossCheckFinding& finding) {
    std::string buffer;
    const std::string_view station =
        text::upper(text::trimmedOfBlanks(others[QSOField::stationCallsign]), buffer);
    if (!station.empty() && !text::equal(station, finding.call)) {
        finding.notes.push_back("Zusatz abweichend: " + finding.call + " ≠ " + std::string(station));
    }
    const std::string_view call = text::upper(text::trimmedOfBlanks(others[QSOField::call]), buffer);
    if (!owner.empty() && !text::equal(call, owner)) {
        finding.notes.push_back("Gegenstation loggte " + std::string(call) + " statt " + owner);
    }
}

void LogCrossCheck::setCounterpart(Number number, CrossCheckFinding& finding) {
    const QSO& other = index.qso(number);
    setCounterpart(number, other.log, *other.record, finding);
}

void LogCrossCheck::setCounterpart(Number number, Number otherLog, const RecordStorage& record,
                                   CrossCheckFinding& finding) {
    const CrossCheckIndex::Log& other = index.log(otherLog);
    other.fields.read(record, others);
    finding.counterpartLogID = other.id;
    finding.counterpartIndex = number - other.begin;
}

}  // namespace tallyrig
