// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStyledItemDelegate>

#include <functional>

namespace quillon {

/// Paints a finding: the icon of its severity (`Qt::DecorationRole`), where it is, its message. The messages
/// stand in one column.
class FindingDelegate : public QStyledItemDelegate {
    Q_OBJECT

  public:
    /// What a row tells besides the icon.
    enum Role {
        placeRole = Qt::UserRole,  ///< Such as "Zeile 1".
        messageRole,
        excerptRole,    ///< What the finding is about.
        firstFreeRole,  ///< For what the model needs beyond these.
    };
    enum class Excerpts { none, belowMessages };

    /// `longestPlace` gives the longest text of `placeRole`.
    FindingDelegate(std::function<QString()> longestPlace, Excerpts shownExcerpts, QObject* parent = nullptr);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

  private:
    std::function<QString()> longest;
    Excerpts excerpts;
};

}  // namespace quillon
