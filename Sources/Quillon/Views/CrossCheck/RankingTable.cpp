// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/CrossCheck/RankingTable.h"

#include "Quillon/Platform/Desktop/FontMeasurer.h"
#include "Quillon/Views/Controls/Colors.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/Tone.h"
#include "Quillon/Views/CrossCheck/RankingModel.h"

#include <QApplication>
#include <QEvent>
#include <QHeaderView>
#include <QHelpEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QToolTip>

#include <algorithm>

namespace quillon {

namespace {

constexpr int paddingPx = 10;

/// Paints the tone of a figure, and the name of the log under its owner.
class RankingDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyleOptionViewItem item = option;
        initStyleOption(&item, index);
        calmSelection(item.palette, item.widget);
        const QString text = item.text;
        item.text.clear();
        const QStyle& style = item.widget != nullptr ? *item.widget->style() : *QApplication::style();
        style.drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);

        const bool isSelected = item.state.testFlag(QStyle::State_Selected);
        const bool isAlternate = item.features.testFlag(QStyleOptionViewItem::Alternate);
        const auto tone = static_cast<Tone>(index.data(RankingModel::toneRole).toInt());
        const QColor plain = item.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text);
        painter->save();
        painter->setFont(item.font);
        // On the ground of a chosen row none of the tones reads as well as its text.
        painter->setPen(
            isSelected || tone == Tone::plain
                ? plain
                : toneColor(tone, item.palette,
                            item.palette.color(isAlternate ? QPalette::AlternateBase : QPalette::Base)));
        // Under its heading.
        const int margin = style.pixelMetric(QStyle::PM_HeaderMargin, nullptr, item.widget);
        QRect line = item.rect.adjusted(margin, 0, -margin, 0);
        const QString name = nameUnder(index);
        if (!name.isEmpty()) {
            line.setBottom(line.center().y());
        }
        const auto draw = [&](const QString& words, Qt::Alignment side) {
            painter->drawText(line, static_cast<int>(side) | Qt::TextSingleLine,
                              painter->fontMetrics().elidedText(words, Qt::ElideRight, line.width()));
        };
        const bool isLeft = (item.displayAlignment & Qt::AlignLeft) != 0;
        draw(text, (isLeft ? Qt::AlignLeft : Qt::AlignRight) |
                       (name.isEmpty() ? Qt::AlignVCenter : Qt::AlignBottom));
        if (!name.isEmpty()) {
            line = QRect(line.left(), line.bottom() + 1, line.width(), item.rect.bottom() - line.bottom());
            painter->setFont(smallFont());
            painter->setPen(isSelected ? plain : item.palette.color(QPalette::PlaceholderText));
            draw(name, Qt::AlignLeft | Qt::AlignTop);
        }
        painter->restore();
    }

    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override {
        const QString owner = index.data().toString();
        const QString name = nameUnder(index);
        const int room = option.rect.width() - paddingPx;
        const bool isCut = QFontMetrics(view->font()).horizontalAdvance(owner) > room ||
                           QFontMetrics(smallFont()).horizontalAdvance(name) > room;
        if (event->type() != QEvent::ToolTip || name.isEmpty() || !isCut) {
            return QStyledItemDelegate::helpEvent(event, view, option, index);
        }
        QToolTip::showText(event->globalPos(),
                           plainToolTip(owner + QLatin1Char('\n') + name) + QLatin1Char('\n') +
                               index.data(Qt::ToolTipRole).toString(),
                           view);
        return true;
    }

  private:
    static QString nameUnder(const QModelIndex& index) {
        const auto& model = static_cast<const RankingModel&>(*index.model());
        return model.columnAt(index.column()) == RankingModel::Column::owner
                   ? index.data(RankingModel::nameRole).toString()
                   : QString();
    }
};

}  // namespace

RankingTable::RankingTable(RankingModel& rankingModel, QWidget* parent)
    : QTableView(parent), ranking(rankingModel) {
    setModel(&ranking);
    setItemDelegate(new RankingDelegate(this));
    setFrameShape(QFrame::NoFrame);
    setShowGrid(false);
    setAlternatingRowColors(true);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    // Also the row that is shown already: what is chosen stays when another log becomes the first.
    for (const auto signal : {&QTableView::clicked, &QTableView::activated}) {
        connect(this, signal, this,
                [this](const QModelIndex& index) { emit logChosen(ranking.logAt(index.row())); });
    }
    connect(&ranking, &QAbstractItemModel::modelReset, this, &RankingTable::layOutColumns);
    layOutColumns();
}

void RankingTable::showLog(std::optional<tallyrig::UUID> log) {
    const QScopedValueRollback guard(isFollowing, true);
    const int row = log ? ranking.rowOf(*log) : -1;
    if (row < 0) {
        clearSelection();
        return;
    }
    // Otherwise the row is brought into a view of the rows that were there before.
    executeDelayedItemsLayout();
    // In the column where the keyboard was.
    const int column = std::max(currentIndex().column(), 0);
    setCurrentIndex(ranking.index(row, std::min(column, ranking.columnCount() - 1)));
}

void RankingTable::keyboardSearch(const QString& search) {
    // Qt searches the column of the current cell.
    for (int column = 0; column < ranking.columnCount(); ++column) {
        if (ranking.columnAt(column) == RankingModel::Column::owner && currentIndex().column() != column) {
            const QScopedValueRollback guard(isFollowing, true);
            setCurrentIndex(ranking.index(std::max(currentIndex().row(), 0), column));
        }
    }
    QTableView::keyboardSearch(search);
}

QSize RankingTable::minimumSizeHint() const {
    constexpr int fewestRows = 3;
    return {QTableView::minimumSizeHint().width(), horizontalHeader()->sizeHint().height() +
                                                       fewestRows * verticalHeader()->defaultSectionSize() +
                                                       horizontalScrollBar()->sizeHint().height()};
}

void RankingTable::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        layOutColumns();
    }
}

void RankingTable::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    if (!isFollowing && current.isValid() && current.row() != previous.row()) {
        emit logChosen(ranking.logAt(current.row()));
    }
}

/// By the heading and by the longest figure that a contest gives, not by all rows: there may be ten thousand.
void RankingTable::layOutColumns() {
    const QFontMetrics letters(font());
    verticalHeader()->setDefaultSectionSize(letters.height() + QFontMetrics(smallFont()).height() + 6);
    const auto longest = [](RankingModel::Column column) {
        switch (column) {
            case RankingModel::Column::rank:
                return QStringLiteral("8888.");
            case RankingModel::Column::quota:
                return QStringLiteral("100,0 %");
            case RankingModel::Column::claimed:
            case RankingModel::Column::checked:
                return QStringLiteral("88.888.888");
            default:
                return QStringLiteral("88.888");
        }
    };
    int owner = 0;
    int others = 0;
    for (int column = 0; column < ranking.columnCount(); ++column) {
        if (ranking.columnAt(column) == RankingModel::Column::owner) {
            owner = column;
            continue;
        }
        int width = letters.horizontalAdvance(longest(ranking.columnAt(column)));
        const QString heading = ranking.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        for (const QString& line : heading.split(QLatin1Char('\n'))) {
            width = std::max(width, horizontalHeader()->fontMetrics().horizontalAdvance(line));
        }
        setColumnWidth(column, width + paddingPx + 2);
        others += width + paddingPx + 2;
    }
    const int readable = letters.horizontalAdvance(QStringLiteral("DL1QZA/P DL1QZA/P"));
    setColumnWidth(owner, std::max(readable, viewport()->width() - others));
    updateGeometry();
}

void RankingTable::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    layOutColumns();
}

}  // namespace quillon
