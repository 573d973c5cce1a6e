// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/UUID.h"

#include <QTimer>
#include <QWidget>

#include <array>
#include <cstddef>

class QLabel;
class QProgressBar;
class QPushButton;
class QStackedLayout;

namespace quillon {

class Card;
class CrossCheckRunner;
class CrossCheckStore;
class FindingsCard;
class LogStore;
class RankingModel;
class RankingTable;
class Tile;

/// The result of a cross-check: key figures, the logs with their places and counts, and the findings of the
/// log that is chosen there. While it is worked on, the result before stays in view.
class CrossCheckView : public QWidget {
    Q_OBJECT

  public:
    /// The stores and the runner outlive the view. At most `mostFindings` of a log are listed.
    CrossCheckView(LogStore& logStore, CrossCheckStore& crossStore, CrossCheckRunner& crossRunner,
                   std::size_t mostFindings, QWidget* parent = nullptr);

  signals:
    /// The user wants to see this QSO. It is selected by now, and the log is what the window shows.
    void qsoWanted(tallyrig::UUID record);

  protected:
    void hideEvent(QHideEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    QWidget* progressStrip();
    QWidget* emptyPage();
    QWidget* resultPage();
    void showResult();
    /// The result, what to do where there is none, or nothing while the first one is on its way.
    void choosePage();
    bool hasResult() const;
    void showFindings();
    void showProgress();
    void goTo(tallyrig::UUID record);

    LogStore& log;
    CrossCheckStore& store;
    CrossCheckRunner& runner;
    const std::size_t findingLimit;

    QWidget* strip = nullptr;
    QLabel* stripText = nullptr;
    QProgressBar* stripBar = nullptr;
    QPushButton* stripButton = nullptr;
    QTimer patience;  ///< Until a run is long enough to be told of.
    QPushButton* addButton = nullptr;
    QStackedLayout* body = nullptr;
    std::array<Tile*, 4> tiles{};
    Card* rankingCard = nullptr;
    RankingModel* ranking = nullptr;
    RankingTable* table = nullptr;
    FindingsCard* findings = nullptr;
};

}  // namespace quillon
