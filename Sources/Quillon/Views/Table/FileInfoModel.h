// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFDocument.h"

#include <QAbstractListModel>
#include <QStyledItemDelegate>

#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// The header of a log as the rows of a list: the lines of its comment, then its fields. Texts are made when
/// a row is looked at.
class FileInfoModel : public QAbstractListModel {
    Q_OBJECT

  public:
    enum Role {
        nameRole = Qt::UserRole,  ///< Of a field; empty for a line of the comment.
        valueRole,                ///< The beginning of it, made for one line.
        wholeRole,                ///< Name and value as they are, for the clipboard.
    };

    using QAbstractListModel::QAbstractListModel;

    /// Nothing is sent if the header is the one that is shown already.
    void setDocument(const tallyrig::ADIFDocument& log);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

  private:
    tallyrig::ADIFDocument document;
    std::vector<std::string_view> commentLines;  ///< Refer to `document`.
    std::string furtherLines;                    ///< Says how many lines of the comment are left out.
};

/// Paints such a row: the name in a column of its own, in letters of one width, and the value.
class FileInfoDelegate : public QStyledItemDelegate {
    Q_OBJECT

  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace quillon
