// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/BackgroundWork.h"
#include "Quillon/Stores/CrossCheckFiles.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <memory>
#include <optional>

namespace tallyrig {
class LogWork;
}

namespace quillon {

class ContestStore;
class CrossCheckStore;
class LogStore;
struct CrossCheckEvaluation;

/// Keeps the result of the cross-check up to date beside the main thread: reads the logs that are added,
/// checks and scores anew when logs, options or rules have changed, and writes the reports.
class CrossCheckRunner : public QObject {
    Q_OBJECT

  public:
    /// The stores outlive the runner.
    CrossCheckRunner(const LogStore& logStore, const ContestStore& contestStore, CrossCheckStore& crossStore,
                     QObject* parent = nullptr);

    /// Whether anybody looks at the result: while nobody does, nothing is checked.
    void setWatched(bool isWatched);

    /// Reads files, and of folders the logs in them. What is being read is finished first.
    void addLogs(const QStringList& paths);
    void addLogsWithPanel();
    /// Writes the reports of what is on screen. Nothing happens while there is no result that holds, or while
    /// they are written.
    void exportReportsWithPanel();
    /// Gives up what runs. What was there before stays.
    void cancel();
    /// Checks again what was given up.
    void resume();

    bool isRunning() const { return background.isRunning(); }
    /// Whether something runs or, while the result is watched, is due.
    bool isBusy() const { return isRunning() || pause.isActive() || !pathsToAdd.isEmpty(); }
    /// Whether the result on screen lags behind because the user gave up the check.
    bool isGivenUp() const { return givenUp; }
    /// Also while it is exported, or the button for it would lose the keyboard.
    bool canExport() const;
    /// What is being done, such as "Cross-Check … 38 %"; empty while nothing is.
    QString progressText() const;
    /// From 0 to 1.
    double progress() const { return background.progress(); }

  signals:
    /// What runs, how far it is, or what can be done may have changed.
    void changed();

  private:
    enum class Phase { idle, reading, checking, writing };

    void checkSoon();
    void checkWhenTyped();
    void checkAfter(int pauseMs);
    void check();
    void takeOver(const std::shared_ptr<const CrossCheckEvaluation>& evaluation);
    void readNext();
    void ended();

    const LogStore& log;
    const ContestStore& contest;
    CrossCheckStore& store;
    BackgroundWork background;
    BackgroundWork freeing;  ///< Of the result before, which takes most of a second for 5,000,000 QSOs.
    Phase phase = Phase::idle;
    std::shared_ptr<const tallyrig::LogWork> reading;        ///< Of the logs that are read, or were last.
    std::shared_ptr<std::optional<WrittenReports>> written;  ///< By what writes; null while nothing does.
    QTimer pause;
    QStringList pathsToAdd;  ///< What is to be read next.
    bool watched = false;
    bool isStale = true;  ///< The result may not be that of logs, options and rules as they are now.
    bool givenUp = false;
};

}  // namespace quillon
