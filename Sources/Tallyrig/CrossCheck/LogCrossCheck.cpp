// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/CrossCheck/LogCrossCheck.h"

#include "Tallyrig/CrossCheck/LogWork.h"

#include "Tallyrig/CrossCheck/ExchangeCheck.h"
#include "Tallyrig/CrossCheck/ExchangeWord.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
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

void LogCrossCheck::judge(std::size_t position, CrossCheckReport::Findings& findings, const LogWork& work) {
    turnTo(position);
    Number number = log->begin;
    for (CrossCheckFinding& finding : findings) {
        if (work.isCancelled()) {
            return;
        }
        evaluate(number++, finding);
    }
}

void LogCrossCheck::turnTo(std::size_t position) {
    log = &index.logAt(position);
    ownBase = index.station(log->station).base;
    owner = upperTrimmed(logs[position].owner);
    holders.turnTo(ownBase);
    mistyped.clear();
    used.clear(logs[position].document.records().size());
}

void LogCrossCheck::evaluate(Number number, CrossCheckFinding& finding) {
    const QSO& qso = index.qso(number);
    const Number station = qso.base == ownBase ? CrossCheckIndex::none : index.stationOf(qso.base);
    const bool hasOtherLog = station != CrossCheckIndex::none;
    if (hasOtherLog && (isInLog(qso, station, finding) || isUnderMistypedOwnCall(qso, station, finding))) {
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

bool LogCrossCheck::isInLog(const QSO& qso, Number station, CrossCheckFinding& finding) {
    const auto isOther = [this](Number number) { return isUsed(number); };
    if (const auto hit = holders.nearest(station, index.spotOf(qso), qso.minutes, isOther);
        hit &&
        hit->minutesApart <= std::max(options.timeToleranceMinutes, options.extendedToleranceMinutes)) {
        use(hit->holder->number);
        setCounterpart(hit->holder->number, hit->holder->log, finding);
        if (hit->minutesApart <= options.timeToleranceMinutes) {
            matched(qso, *hit->holder, finding);
        } else {
            matchedLate(qso, *hit, finding);
        }
        return true;
    }
    const auto hit = holders.nearest(station, std::nullopt, qso.minutes, isOther);
    if (!hit || hit->minutesApart > options.timeToleranceMinutes) {
        return false;
    }
    // It is not used up: it may be the match of a QSO that comes later.
    setCounterpart(hit->holder->number, hit->holder->log, finding);
    matchedElsewhere(qso, index.qso(hit->holder->number), finding);
    return true;
}

void LogCrossCheck::matched(const QSO& qso, const CrossCheckIndex::Holder& other,
                            CrossCheckFinding& finding) {
    finding.status = CrossCheckStatus::confirmed;
    const bool haveTimes = qso.minutes != noTime && other.spotTime.minutes() != noTime;
    if (haveTimes && exchangeWord::agree(qso.received, other.sent)) {
        return;
    }
    readRecords(qso, other.number, other.log);
    addSuffixNotes(finding);
    if (!haveTimes) {
        finding.notes.emplace_back("Zeit nicht prüfbar");
    }
    if (options.checkExchange) {
        std::vector<std::string> mismatches = exchangeMismatches(own, others, options.checkRST);
        if (!mismatches.empty()) {
            finding.status = CrossCheckStatus::bustedExchange;
            std::ranges::move(mismatches, std::back_inserter(finding.notes));
        }
    }
}

void LogCrossCheck::matchedLate(const QSO& qso, const CallHolders::Hit& hit, CrossCheckFinding& finding) {
    finding.status = CrossCheckStatus::timeMismatch;
    finding.notes.push_back("Zeitdifferenz " + std::to_string(hit.minutesApart) + " min");
    // Calls are plain where the exchange is known.
    if (!exchangeWord::areKnown(qso.received, hit.holder->sent)) {
        readRecords(qso, hit.holder->number, hit.holder->log);
        addSuffixNotes(finding);
    }
}

void LogCrossCheck::matchedElsewhere(const QSO& qso, const QSO& other, CrossCheckFinding& finding) const {
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
    const Number number = nearestMistyped(qso, station);
    if (number == CrossCheckIndex::none) {
        return false;
    }
    const Number otherLog = index.logOf(number);
    use(number);
    setCounterpart(number, otherLog, finding);
    readRecords(qso, number, otherLog);
    finding.status = CrossCheckStatus::confirmed;
    finding.notes.push_back("Gegenstation loggte dein Rufzeichen als " +
                            upperTrimmed(others[QSOField::call]));
    return true;
}

CrossCheckIndex::Number LogCrossCheck::nearestMistyped(const QSO& qso, Number station) {
    constexpr std::size_t few = 16;
    const std::span<const CrossCheckIndex::Stray> strays = index.strays(station);
    const SpotTime::Spot spot = index.spotOf(qso);
    const auto around = itemsAround(strays, spot, qso.minutes, options.timeToleranceMinutes);
    if (around.size() > few) {
        // As soon as the whole log has been looked through once, a list is made of it.
        Mistyped& known = mistyped[station];
        known.visited += around.size();
        if (known.visited > strays.size()) {
            if (!known.candidates) {
                known.candidates = mistypedBy(station);
            }
            const auto hit = known.candidates->nearest(spot, qso.minutes,
                                                       [this](Number number) { return isUsed(number); });
            return hit && hit->minutesApart <= options.timeToleranceMinutes ? hit->number
                                                                            : CrossCheckIndex::none;
        }
    }
    // Of equals the one whose call comes first in the logs of the other station.
    using Rank = std::tuple<std::int64_t, Number, Number>;
    std::optional<Rank> best;
    around.visit([&](const CrossCheckIndex::Stray& stray) {
        const std::int64_t apart = minutesApart(stray.spotTime.minutes(), qso.minutes);
        if ((best && apart > std::get<0>(*best)) || !index.areAlike(stray.base, ownBase) ||
            isUsed(stray.number)) {
            return;
        }
        const Rank rank = {apart, index.firstHolder(stray.base, index.station(station)), stray.number};
        if (!best || rank < *best) {
            best = rank;
        }
    });
    return best ? std::get<2>(*best) : CrossCheckIndex::none;
}

Candidates LogCrossCheck::mistypedBy(Number station) const {
    struct Ranked {
        Number firstOfCall;
        Candidates::Candidate candidate;
    };
    std::unordered_map<Number, std::optional<Number>> firstOfCalls;
    std::vector<Ranked> ranked;
    for (const CrossCheckIndex::Stray& stray : index.strays(station)) {
        const auto [entry, isNew] = firstOfCalls.try_emplace(stray.base);
        if (isNew && index.areAlike(stray.base, ownBase)) {
            entry->second = index.firstHolder(stray.base, index.station(station));
        }
        if (entry->second) {
            ranked.push_back({*entry->second, {stray.spotTime, stray.number}});
        }
    }
    std::ranges::sort(ranked, {},
                      [](const Ranked& one) { return std::pair(one.firstOfCall, one.candidate.number); });
    std::vector<Candidates::Candidate> candidates;
    std::ranges::transform(ranked, std::back_inserter(candidates), &Ranked::candidate);
    return Candidates(std::move(candidates));
}

bool LogCrossCheck::isWithLikeCall(const QSO& qso, CrossCheckFinding& finding) {
    if (index.isEmptyCall(qso.base)) {
        return false;
    }
    // The first station in text order, even if the call of another is more alike.
    const CrossCheckIndex::Holder* const other = holders.firstAround(
        index.spotOf(qso), qso.minutes, options.timeToleranceMinutes, [&](Number station) {
            const Number base = index.station(station).base;
            return base != qso.base && base != ownBase && !index.isEmptyCall(base) &&
                   index.areAlike(base, qso.base);
        });
    if (other == nullptr) {
        return false;
    }
    setCounterpart(other->number, other->log, finding);
    finding.status = CrossCheckStatus::bustedCall;
    finding.notes.push_back("vermutlich " + index.station(index.stationOfLog(other->log)).call);
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

void LogCrossCheck::setCounterpart(Number number, Number otherLog, CrossCheckFinding& finding) const {
    const CrossCheckIndex::Log& other = index.log(otherLog);
    finding.counterpartLogID = other.id;
    finding.counterpartIndex = number - other.begin;
}

void LogCrossCheck::readRecords(const QSO& qso, Number number, Number otherLog) {
    log->fields.read(*qso.record, own);
    index.log(otherLog).fields.read(*index.qso(number).record, others);
}

}  // namespace tallyrig
