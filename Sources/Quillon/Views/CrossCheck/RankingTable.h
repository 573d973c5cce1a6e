// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/UUID.h"

#include <QTableView>

#include <optional>

namespace quillon {

class RankingModel;

/// The ranking as a table: one log is chosen, by mouse, by arrows or by typing its call.
class RankingTable : public QTableView {
    Q_OBJECT

  public:
    /// `rankingModel` outlives the table.
    explicit RankingTable(RankingModel& rankingModel, QWidget* parent = nullptr);

    /// Chooses the row of the log, or none; in view. Does not send `logChosen`.
    void showLog(std::optional<tallyrig::UUID> log);
    /// Looks for the next call that begins with what is typed, or else holds it.
    void keyboardSearch(const QString& search) override;
    /// The headings and some rows.
    QSize minimumSizeHint() const override;
    QSize sizeHint() const override { return minimumSizeHint(); }

  signals:
    /// The user chose another log.
    void logChosen(tallyrig::UUID log);

  protected:
    void changeEvent(QEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void layOutColumns();

    RankingModel& ranking;
    bool isFollowing = false;  ///< The choice changes from outside.
};

}  // namespace quillon
