// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/FindingDelegate.h"

#include "Quillon/Views/Controls/Labels.h"

#include <QApplication>
#include <QIcon>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

constexpr int marginPx = 12;
constexpr int gapPx = 8;
constexpr int iconPx = 16;
constexpr int paddingPx = 3;

/// So wide that the number stays in its column whatever digits it has.
int placeWidth(const QFontMetrics& metrics, QString longestPlace) {
    for (QChar& character : longestPlace) {
        if (character.isDigit()) {
            character = QLatin1Char('0');
        }
    }
    return metrics.horizontalAdvance(longestPlace);
}

}  // namespace

FindingDelegate::FindingDelegate(std::function<QString()> longestPlace, Excerpts shownExcerpts,
                                 QObject* parent)
    : QStyledItemDelegate(parent), longest(std::move(longestPlace)), excerpts(shownExcerpts) {}

void FindingDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const {
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const QIcon icon = item.icon;
    item.icon = QIcon();
    item.text.clear();
    const QStyle& style = item.widget != nullptr ? *item.widget->style() : *QApplication::style();
    style.drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);

    const bool isSelected = item.state.testFlag(QStyle::State_Selected);
    const QRect whole = item.rect.adjusted(marginPx, 0, -marginPx, 0);
    const bool hasExcerpt = excerpts == Excerpts::belowMessages;
    const QRect row =
        hasExcerpt ? QRect(whole.left(), whole.top() + paddingPx, whole.width(), item.fontMetrics.height())
                   : whole;
    icon.paint(painter, QRect(row.left(), row.center().y() - iconPx / 2 + 1, iconPx, iconPx));
    const QRect place(row.left() + iconPx + gapPx, row.top(), placeWidth(item.fontMetrics, longest()),
                      row.height());
    const QRect message = row.adjusted(place.right() + 1 + 2 * gapPx - row.left(), 0, 0, 0);
    const QColor standingBack =
        item.palette.color(isSelected ? QPalette::HighlightedText : QPalette::PlaceholderText);
    constexpr int alignment = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine;

    painter->save();
    painter->setFont(item.font);
    painter->setPen(standingBack);
    painter->drawText(place, alignment, index.data(placeRole).toString());
    painter->setPen(item.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
    painter->drawText(
        message, alignment,
        item.fontMetrics.elidedText(index.data(messageRole).toString(), Qt::ElideRight, message.width()));
    if (hasExcerpt) {
        const QFont fixed = fixedFontBeside(item.font);
        painter->setFont(fixed);
        painter->setPen(standingBack);
        painter->drawText(message.translated(0, row.height()), alignment,
                          QFontMetrics(fixed).elidedText(index.data(excerptRole).toString(), Qt::ElideRight,
                                                         message.width()));
    }
    painter->restore();
}

QSize FindingDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
    const int lines = excerpts == Excerpts::belowMessages ? 2 : 1;
    return {1, std::max(iconPx, lines * option.fontMetrics.height()) + 2 * paddingPx};
}

}  // namespace quillon
