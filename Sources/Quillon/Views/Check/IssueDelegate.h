// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStyledItemDelegate>

namespace quillon {

class IssueListModel;

/// Paints a finding: the icon of its severity, the number of its record, its message. The messages stand in
/// one column.
class IssueDelegate : public QStyledItemDelegate {
    Q_OBJECT

  public:
    /// `issueModel` outlives the delegate.
    explicit IssueDelegate(const IssueListModel& issueModel, QObject* parent = nullptr);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

  private:
    const IssueListModel& model;
};

}  // namespace quillon
