// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/CrossCheck/CrossCheckRunner.h"

#include "Quillon/Catalogue/CrossCheckWords.h"
#include "Quillon/Stores/ContestStore.h"
#include "Quillon/Stores/CrossCheckEvaluation.h"
#include "Quillon/Stores/CrossCheckFiles.h"
#include "Quillon/Stores/CrossCheckStore.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Tallyrig/CrossCheck/LogWork.h"

#include <QDate>

#include <memory>
#include <utility>

namespace quillon {

namespace {

constexpr int typingPauseMs = 300;

using TakeOver = BackgroundWork::TakeOver;

}  // namespace

CrossCheckRunner::CrossCheckRunner(const LogStore& logStore, const ContestStore& contestStore,
                                   CrossCheckStore& crossStore, QObject* parent)
    : QObject(parent), log(logStore), contest(contestStore), store(crossStore) {
    pause.setSingleShot(true);
    connect(&pause, &QTimer::timeout, this, &CrossCheckRunner::check);
    connect(&background, &BackgroundWork::progressed, this, &CrossCheckRunner::changed);
    connect(&background, &BackgroundWork::runningChanged, this, &CrossCheckRunner::ended);

    for (const auto signal : {&LogStore::documentChanged, &LogStore::fileURLChanged}) {
        connect(&log, signal, this, &CrossCheckRunner::checkSoon);
    }
    connect(&contest, &ContestStore::contestChanged, this, &CrossCheckRunner::checkSoon);
    for (const auto signal : {&ContestStore::ownStationChanged, &ContestStore::genericContestChanged}) {
        connect(&contest, signal, this, &CrossCheckRunner::checkWhenTyped);
    }
    for (const auto signal :
         {&CrossCheckStore::includeCurrentLogChanged, &CrossCheckStore::compareModeChanged,
          &CrossCheckStore::checkExchangeChanged, &CrossCheckStore::checkRSTChanged,
          &CrossCheckStore::scoringEnabledChanged, &CrossCheckStore::removeBustedExchangeChanged,
          &CrossCheckStore::nilPenaltyFactorChanged, &CrossCheckStore::bustedPenaltyFactorChanged,
          &CrossCheckStore::toleranceMinutesChanged}) {
        connect(&store, signal, this, &CrossCheckRunner::checkSoon);
    }
    for (const auto signal :
         {&CrossCheckStore::entriesChanged, &CrossCheckStore::currentOwnerOverrideChanged}) {
        connect(&store, signal, this, &CrossCheckRunner::checkWhenTyped);
    }
    connect(&store, &CrossCheckStore::evaluationChanged, this, &CrossCheckRunner::changed);
}

void CrossCheckRunner::setWatched(bool isWatched) {
    watched = isWatched;
    if (watched && isStale) {
        pause.start(0);
    }
}

void CrossCheckRunner::checkSoon() {
    checkAfter(0);
}

void CrossCheckRunner::checkWhenTyped() {
    checkAfter(typingPauseMs);
}

void CrossCheckRunner::checkAfter(int pauseMs) {
    isStale = true;
    if (watched) {
        pause.start(pauseMs);
    }
    emit changed();
}

void CrossCheckRunner::check() {
    if (phase == Phase::reading || phase == Phase::writing) {
        // Done when that has ended.
        return;
    }
    CrossCheckInput input = store.input(log.document(), log.fileURL(),
                                        {contest.contest(), contest.genericContest(), contest.station()});
    isStale = false;
    givenUp = false;
    if (store.evaluation() && store.evaluation()->input.isSameAs(input)) {
        if (phase == Phase::checking) {
            background.cancel();
        }
        emit changed();
        return;
    }
    phase = Phase::checking;
    // Until there is a result: the check may be cancelled, or the memory may not reach.
    givenUp = true;
    background.start<EvaluationWork>([this, input = std::move(input)](EvaluationWork& work) -> TakeOver {
        auto result = evaluated(input, work);
        if (!result) {
            return {};
        }
        return [this, shared = std::make_shared<const CrossCheckEvaluation>(std::move(*result))] {
            takeOver(shared);
        };
    });
    emit changed();
}

void CrossCheckRunner::takeOver(const std::shared_ptr<const CrossCheckEvaluation>& evaluation) {
    givenUp = false;
    // Held by one pointer that the other thread empties, whoever copies the task.
    const auto last = std::make_shared<std::shared_ptr<const CrossCheckEvaluation>>(store.evaluation());
    store.take(evaluation);
    if (*last == nullptr) {
        return;
    }
    freeing.start<tallyrig::LogWork>([last](tallyrig::LogWork&) -> TakeOver {
        last->reset();
        return {};
    });
}

void CrossCheckRunner::addLogs(const QStringList& paths) {
    pathsToAdd += paths;
    if (phase != Phase::reading && phase != Phase::writing) {
        readNext();
    }
}

void CrossCheckRunner::readNext() {
    phase = Phase::reading;
    isStale = true;
    reading.reset();
    reading = background.start<tallyrig::LogWork>(
        [this, wanted = store.logsToAdd(std::exchange(pathsToAdd, {}), log.fileURL())](
            tallyrig::LogWork& work) -> TakeOver {
            auto added = readLogs(wanted, work);
            if (!added) {
                return {};
            }
            return [this, shared = std::make_shared<AddedLogs>(std::move(*added))] {
                store.take(std::move(*shared));
                checkSoon();
            };
        });
    emit changed();
}

void CrossCheckRunner::addLogsWithPanel() {
    if (const auto wanted = store.logsToAddWithPanel(log.fileURL())) {
        QStringList paths;
        for (const std::string& path : wanted->paths) {
            paths.append(QString::fromStdString(path));
        }
        addLogs(paths);
    }
}

bool CrossCheckRunner::canExport() const {
    return (!isRunning() || phase == Phase::writing) && !isStale && !givenUp && store.evaluation() &&
           store.evaluation()->input.logs.size() >= 2;
}

void CrossCheckRunner::exportReportsWithPanel() {
    if (!canExport() || phase == Phase::writing) {
        return;
    }
    const auto wanted = store.reportsToWriteWithPanel(store.evaluation(), QDate::currentDate());
    if (!wanted) {
        return;
    }
    phase = Phase::writing;
    written = std::make_shared<std::optional<WrittenReports>>();
    background.start<tallyrig::LogWork>(
        [wanted = *wanted, result = written](tallyrig::LogWork& work) -> TakeOver {
            *result = writeReports(wanted, work);
            return {};
        });
    emit changed();
}

void CrossCheckRunner::cancel() {
    pathsToAdd.clear();
    background.cancel();
}

void CrossCheckRunner::resume() {
    checkSoon();
}

QString CrossCheckRunner::progressText() const {
    const QString share = QString::number(static_cast<int>(progress() * 100)) + QStringLiteral(" %");
    switch (phase) {
        case Phase::reading:
            return reading ? toQString(readingText(*reading)) : QString();
        case Phase::checking:
            return QStringLiteral("Cross-Check … ") + share;
        case Phase::writing:
            return QStringLiteral("Berichte werden geschrieben … ") + share;
        case Phase::idle:
            break;
    }
    return {};
}

/// Also told when something begins. What was read or written is taken over right behind this.
void CrossCheckRunner::ended() {
    if (!background.isRunning()) {
        phase = Phase::idle;
        // Also where the user gave up too late: what lies on the disk is told of.
        if (const auto result = std::exchange(written, nullptr); result && *result) {
            store.take(**result);
        }
        if (!pathsToAdd.isEmpty()) {
            QTimer::singleShot(0, this, [this] {
                if (phase == Phase::idle && !pathsToAdd.isEmpty()) {
                    readNext();
                }
            });
        } else if (watched && isStale) {
            pause.start(0);
        }
    }
    emit changed();
}

}  // namespace quillon
