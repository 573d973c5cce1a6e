// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Views/Controls/FindingDelegate.h"

#include <QAbstractListModel>
#include <QString>
#include <QTimer>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace tallyrig {
class ValidationIssue;
}

namespace quillon {

class LogStore;

/// Which findings are wanted.
struct IssueFilter {
    bool errors = true;
    bool warnings = true;
    QString text;  ///< To be found in the row, in any case; empty for all.

    bool passesAll() const { return errors && warnings && text.isEmpty(); }
    friend bool operator==(const IssueFilter&, const IssueFilter&) = default;
};

/// The findings of the last check as the rows of a list. Texts are made when a row is looked at, so that a
/// list of hundreds of thousands costs nothing.
class IssueListModel : public QAbstractListModel {
    Q_OBJECT

  public:
    /// What a row tells besides its whole text (`Qt::DisplayRole`) and what `FindingDelegate` asks for.
    enum Role {
        issueIndexRole =
            FindingDelegate::firstFreeRole,  ///< The position of the finding in the store's list.
    };

    /// `logStore` outlives the model.
    explicit IssueListModel(const LogStore& logStore, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

    /// Leaves out the findings that are not wanted, now and in the checks to come. Rows are looked for a few
    /// thousand at a time, so that the user can go on typing: they arrive one batch after the other.
    void setFilter(const IssueFilter& wanted);
    /// Whether rows may still arrive.
    bool isFiltering() const { return nextBatch.isActive(); }

    /// The row of the finding at `issueIndex` of the store's list; absent if there is none, or not yet.
    std::optional<int> rowOf(std::size_t issueIndex) const;

    /// The longest place of a finding; empty without findings.
    QString longestLine() const;

  signals:
    /// All rows are there.
    void filtered();

  private:
    void restart();
    void filterNextBatch();
    bool passes(const tallyrig::ValidationIssue& issue) const;

    const LogStore& store;
    IssueFilter filter;
    std::size_t count = 0;               ///< Of the findings without a filter.
    std::vector<std::uint32_t> matches;  ///< The findings that pass the filter; unused where it passes all.
    std::size_t looked = 0;              ///< How many findings the filter has seen.
    QTimer nextBatch;
};

}  // namespace quillon
