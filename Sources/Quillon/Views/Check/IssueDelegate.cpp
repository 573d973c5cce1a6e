// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Check/IssueDelegate.h"

#include "Quillon/Views/Check/IssueListModel.h"

#include <QApplication>
#include <QIcon>
#include <QPainter>

#include <algorithm>

namespace quillon {

namespace {

constexpr int marginPx = 12;
constexpr int gapPx = 8;
constexpr int iconPx = 16;

/// So wide that the number stays in its column whatever digits it has.
int lineWidth(const QFontMetrics& metrics, QString longestLine) {
    for (QChar& character : longestLine) {
        if (character.isDigit()) {
            character = QLatin1Char('0');
        }
    }
    return metrics.horizontalAdvance(longestLine);
}

}  // namespace

IssueDelegate::IssueDelegate(const IssueListModel& issueModel, QObject* parent)
    : QStyledItemDelegate(parent), model(issueModel) {}

void IssueDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const {
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const QIcon icon = item.icon;
    item.icon = QIcon();
    item.text.clear();
    const QStyle& style = item.widget != nullptr ? *item.widget->style() : *QApplication::style();
    style.drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);

    const bool isSelected = item.state.testFlag(QStyle::State_Selected);
    const QRect row = item.rect.adjusted(marginPx, 0, -marginPx, 0);
    icon.paint(painter, QRect(row.left(), row.center().y() - iconPx / 2 + 1, iconPx, iconPx));
    const QRect line(row.left() + iconPx + gapPx, row.top(), lineWidth(item.fontMetrics, model.longestLine()),
                     row.height());
    const QRect message = row.adjusted(line.right() + 1 + 2 * gapPx - row.left(), 0, 0, 0);

    painter->save();
    painter->setFont(item.font);
    painter->setPen(item.palette.color(isSelected ? QPalette::HighlightedText : QPalette::PlaceholderText));
    painter->drawText(line, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                      index.data(IssueListModel::lineRole).toString());
    painter->setPen(item.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
    painter->drawText(message, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                      item.fontMetrics.elidedText(index.data(IssueListModel::messageRole).toString(),
                                                  Qt::ElideRight, message.width()));
    painter->restore();
}

QSize IssueDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
    return {1, std::max(iconPx, option.fontMetrics.height()) + 6};
}

}  // namespace quillon
