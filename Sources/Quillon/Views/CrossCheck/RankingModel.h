// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Views/Controls/Tone.h"
#include "Tallyrig/Adjudication/CrossCheckScore.h"
#include "Tallyrig/CrossCheck/CrossCheckReport.h"
#include "Tallyrig/Log/UUID.h"

#include <QAbstractTableModel>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace quillon {

/// The logs of a cross-check as a table: with scores the best first, otherwise in their order.
class RankingModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    /// In the order of the table; without scores some are missing.
    enum class Column {
        rank,
        owner,
        qsos,
        quota,
        claimed,
        checked,
        confirmed,
        nil_,
        bustedCall,
        bustedExchange,
        mismatch,
        unique,
        noLog,
    };
    enum Role {
        nameRole = Qt::UserRole + 1,  ///< The name of the log.
        toneRole,                     ///< The `Tone` of the figure, as a number.
    };

    using QAbstractTableModel::QAbstractTableModel;

    /// Without `scores` there are no points and no ranks.
    void setResult(const tallyrig::CrossCheckReport& report, const tallyrig::CrossCheckScores& scores);

    tallyrig::UUID logAt(int row) const;
    /// -1 if the log took no part.
    int rowOf(tallyrig::UUID log) const;
    Column columnAt(int column) const { return columns[static_cast<std::size_t>(column)]; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    struct Row {
        tallyrig::CrossCheckSummary summary;
        std::int64_t claimed = 0;
        std::int64_t checked = 0;
        QString pointsHelp;
    };

    QString text(const Row& row, int place, Column column) const;
    static Tone tone(const Row& row, Column column);

    std::vector<Row> rows;
    std::vector<Column> columns;
    bool isScored = false;
};

}  // namespace quillon
