// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/CrossCheck/BaseCall.h"
#include "Tallyrig/CrossCheck/ContestCrossChecker.h"
#include "Tallyrig/CrossCheck/ExchangeCheck.h"
#include "Tallyrig/CrossCheck/ModeCategory.h"
#include "Tallyrig/CrossCheck/QSOTime.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tallyrig::testing {

/// The cross-check as one would do it by hand, list by list and without an index: what the fast one has to
/// find too. For calls in ASCII.
class LiteralCrossCheck {
  public:
    LiteralCrossCheck(const std::vector<CrossCheckLog>& crossCheckLogs, const CrossCheckOptions& checkOptions)
        : logs(crossCheckLogs), options(checkOptions) {
        for (const CrossCheckLog& log : logs) {
            std::vector<QSO>& own = qsos.emplace_back();
            for (const ADIFRecord& record : log.document.records()) {
                own.push_back({&log, own.size(), record, upper(record, "CALL"),
                               baseCall(upper(record, "CALL")), upper(record, "BAND"),
                               modeCategory(record.valueOrEmpty("MODE")),
                               minutesOf(record.valueOrEmpty("QSO_DATE"), record.valueOrEmpty("TIME_ON"))});
            }
            for (const QSO& qso : own) {
                if (!qso.base.empty()) {
                    loggedBy[qso.base].insert(baseCall(log.owner));
                }
            }
        }
        for (std::size_t log = 0; log < logs.size(); ++log) {
            const std::string key = baseCall(logs[log].owner);
            for (const QSO& qso : qsos[log]) {
                if (!key.empty()) {
                    pools[key].push_back(&qso);
                }
            }
        }
    }

    CrossCheckReport report() {
        std::vector<CrossCheckSummary> summaries;
        std::vector<CrossCheckReport::Findings> findings(logs.size());
        for (std::size_t log = 0; log < logs.size(); ++log) {
            summaries.push_back({logs[log].id, logs[log].name, logs[log].owner, {}});
            used.clear();
            ownerBase = baseCall(logs[log].owner);
            owner = text::upper(text::trimmedOfBlanks(logs[log].owner));
            for (const QSO& qso : qsos[log]) {
                CrossCheckFinding finding;
                finding.id = qso.record.id();
                finding.logID = logs[log].id;
                finding.index = qso.index;
                finding.call = qso.call;
                evaluate(qso, finding);
                summaries.back().counts.add(finding.status);
                findings[log].push_back(finding);
            }
        }
        return {summaries, findings};
    }

  private:
    struct QSO {
        const CrossCheckLog* log;
        std::size_t index;
        ADIFRecord record;
        std::string call;
        std::string base;
        std::string band;
        std::string mode;
        std::optional<std::int64_t> minutes;
    };
    using Candidates = std::vector<const QSO*>;

    static std::string upper(const ADIFRecord& record, std::string_view field) {
        return text::upper(text::trimmedOfBlanks(record.valueOrEmpty(field)));
    }

    static std::int64_t distance(std::string_view left, std::string_view right) {
        std::vector<std::vector<std::int64_t>> table(left.size() + 1,
                                                     std::vector<std::int64_t>(right.size() + 1));
        for (std::size_t i = 0; i <= left.size(); ++i) {
            for (std::size_t j = 0; j <= right.size(); ++j) {
                table[i][j] = static_cast<std::int64_t>(i + j);
                if (i > 0 && j > 0) {
                    const int change = left[i - 1] == right[j - 1] ? 0 : 1;
                    table[i][j] =
                        std::min({table[i - 1][j] + 1, table[i][j - 1] + 1, table[i - 1][j - 1] + change});
                }
            }
        }
        return table[left.size()][right.size()];
    }

    static std::int64_t apart(const QSO& a, const QSO& c) {
        return a.minutes && c.minutes ? std::abs(*a.minutes - *c.minutes) : 0;
    }

    const QSO* nearest(const QSO& a, const Candidates& candidates, std::int64_t tolerance, bool samePlace) {
        const QSO* best = nullptr;
        for (const QSO* c : candidates) {
            const bool passes =
                !samePlace || (c->band == a.band && (!options.compareMode || c->mode == a.mode));
            if (passes && apart(a, *c) <= tolerance && (best == nullptr || apart(a, *c) < apart(a, *best))) {
                best = c;
            }
        }
        return best;
    }

    Candidates held(const Candidates& pool, std::string_view base, bool isUsedToo) const {
        Candidates candidates;
        std::ranges::copy_if(pool, std::back_inserter(candidates), [&](const QSO* qso) {
            return qso->base == base && (isUsedToo || !used.contains(qso->record.id()));
        });
        return candidates;
    }

    void evaluate(const QSO& a, CrossCheckFinding& finding) {
        using Status = CrossCheckStatus;
        const auto found = [&](const QSO* c, Status status, std::vector<std::string> notes, bool isUsedUp) {
            finding.status = status;
            finding.notes = std::move(notes);
            finding.counterpartLogID = c->log->id;
            finding.counterpartIndex = c->index;
            if (isUsedUp) {
                used.insert(c->record.id());
            }
        };
        const bool hasPool = a.base != ownerBase && pools.contains(a.base);
        if (hasPool) {
            const Candidates& pool = pools.at(a.base);
            const Candidates available = held(pool, ownerBase, false);
            if (const QSO* c = nearest(a, available, options.timeToleranceMinutes, true)) {
                std::vector<std::string> notes = suffixNotes(a, *c);
                if (!a.minutes || !c->minutes) {
                    notes.emplace_back("Zeit nicht prüfbar");
                }
                const std::vector<std::string> mismatches = exchange(a, *c);
                notes.insert(notes.end(), mismatches.begin(), mismatches.end());
                return found(c, mismatches.empty() ? Status::confirmed : Status::bustedExchange, notes, true);
            }
            if (const QSO* c = nearest(a, available, options.extendedToleranceMinutes, true)) {
                std::vector<std::string> notes = suffixNotes(a, *c);
                notes.insert(notes.begin(), "Zeitdifferenz " + std::to_string(apart(a, *c)) + " min");
                return found(c, Status::timeMismatch, notes, true);
            }
            if (const QSO* c = nearest(a, available, options.timeToleranceMinutes, false)) {
                std::vector<std::string> notes;
                if (c->band != a.band) {
                    notes.push_back("bei Gegenstation auf " + (c->band.empty() ? "?" : text::lower(c->band)));
                }
                if (c->mode != a.mode) {
                    notes.push_back("bei Gegenstation in " + (c->mode.empty() ? "?" : c->mode));
                }
                return found(c, Status::bandModeMismatch, notes, false);
            }
            Candidates miscopied;
            std::set<std::string> keys;
            for (const QSO* first : pool) {
                if (ownerBase.empty() || first->base.empty() || first->base == ownerBase ||
                    pools.contains(first->base) || !keys.insert(first->base).second ||
                    distance(first->base, ownerBase) > options.maxCallDistance) {
                    continue;
                }
                const Candidates ofKey = held(pool, first->base, false);
                miscopied.insert(miscopied.end(), ofKey.begin(), ofKey.end());
            }
            if (const QSO* c = nearest(a, miscopied, options.timeToleranceMinutes, true)) {
                return found(c, Status::confirmed, {"Gegenstation loggte dein Rufzeichen als " + c->call},
                             true);
            }
        }
        for (const auto& [key, pool] : pools) {
            if (a.base.empty() || key == a.base || key == ownerBase ||
                distance(key, a.base) > options.maxCallDistance) {
                continue;
            }
            if (const QSO* c = nearest(a, held(pool, ownerBase, true), options.timeToleranceMinutes, true)) {
                return found(c, Status::bustedCall, {"vermutlich " + key}, false);
            }
        }
        std::set<std::string> others =
            loggedBy.contains(a.base) ? loggedBy.at(a.base) : std::set<std::string>();
        others.erase(ownerBase);
        finding.status = hasPool ? Status::notInLog : others.empty() ? Status::unique : Status::notCheckable;
        if (finding.status == Status::notCheckable) {
            finding.notes = {"in " + std::to_string(others.size()) + " weiteren Log(s)"};
        }
    }

    std::vector<std::string> suffixNotes(const QSO& a, const QSO& c) const {
        std::vector<std::string> notes;
        const std::string station = upper(c.record, "STATION_CALLSIGN");
        if (!station.empty() && station != a.call) {
            notes.push_back("Zusatz abweichend: " + a.call + " ≠ " + station);
        }
        if (!owner.empty() && owner != c.call) {
            notes.push_back("Gegenstation loggte " + c.call + " statt " + owner);
        }
        return notes;
    }

    std::vector<std::string> exchange(const QSO& a, const QSO& c) const {
        const auto read = [](const ADIFRecord& record) {
            QSOFields::Tables tables;
            QSOValues values;
            QSOFields(record.stored().tags(), tables).read(record.stored(), values);
            return values;
        };
        return options.checkExchange ? exchangeMismatches(read(a.record), read(c.record), options.checkRST)
                                     : std::vector<std::string>();
    }

    const std::vector<CrossCheckLog>& logs;
    const CrossCheckOptions& options;
    std::vector<std::vector<QSO>> qsos;
    std::map<std::string, Candidates> pools;
    std::map<std::string, std::set<std::string>> loggedBy;
    std::set<UUID> used;
    std::string ownerBase;
    std::string owner;
};

}  // namespace tallyrig::testing
