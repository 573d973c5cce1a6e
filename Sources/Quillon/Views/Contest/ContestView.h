// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/UUID.h"

#include <QTimer>
#include <QWidget>

#include <array>
#include <cstddef>
#include <vector>

class QLabel;
class QScrollArea;
class QStackedLayout;

namespace tallyrig {
struct ContestScore;
}

namespace quillon {

class Card;
class ContestStore;
class FindingList;
class LogStore;
class Tile;

/// What the open log gives in the contest that is chosen: total, key figures, multipliers, and the QSOs that
/// do not count, each with its reason.
///
/// The log is scored when it or the rules have changed, once for each turn of the event loop; with a long log
/// what the user types comes to a pause first. Nothing is computed while the view is hidden.
class ContestView : public QWidget {
    Q_OBJECT

  public:
    /// With more QSOs than these, a score takes longer than the next key may wait.
    static constexpr std::size_t longLog = 100'000;

    /// The stores outlive the view. At most `mostIssues` QSOs that do not count are listed.
    ContestView(LogStore& logStore, const ContestStore& contestStore, std::size_t mostIssues,
                QWidget* parent = nullptr);

  signals:
    /// The figures are those of log and rules as they are now.
    void scored();
    /// The user wants to see this QSO. It is selected by now, and the log is what the window shows.
    void qsoWanted(tallyrig::UUID record);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    Card* scoreCard();
    QWidget* keyFigures();
    Card* multiplierCard();
    Card* issuesCard();
    void scoreWhenIdle();
    void scoreWhenTyped();
    void scoreAfter(int pauseMs);
    void score();
    void showFigures(const tallyrig::ContestScore& score);
    void showMultipliers(const tallyrig::ContestScore& score);
    void showIssues(const tallyrig::ContestScore& score);
    void goTo(std::size_t recordIndex);

    LogStore& log;
    const ContestStore& contest;
    const std::size_t issueLimit;
    QTimer pause;
    bool isStale = true;  ///< What is shown is not of log and rules as they are now.

    QStackedLayout* body;
    QScrollArea* page;
    Card* head = nullptr;
    QLabel* contestName = nullptr;
    QLabel* total = nullptr;
    QLabel* formula = nullptr;
    std::array<Tile*, 6> tiles{};
    Card* multipliers = nullptr;
    QWidget* multiplierRows = nullptr;
    Card* issues = nullptr;
    QLabel* noIssues = nullptr;
    FindingList* issueList = nullptr;
    QLabel* furtherIssues = nullptr;
    std::vector<std::size_t> issueRecords;  ///< The position in the log of the QSO in each row.
};

}  // namespace quillon
