// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/ChartNumbers.h"

#include "Quillon/Platform/NaturalOrder.h"
#include "Quillon/Views/Controls/Strings.h"

#include <QAbstractTableModel>
#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QSortFilterProxyModel>

#include <algorithm>
#include <utility>
#include <vector>

namespace quillon {

namespace {

constexpr int mostRowsInSight = 10;
constexpr int countColumn = 1;

class NumbersModel : public QAbstractTableModel {
  public:
    NumbersModel(std::shared_ptr<const ChartData> data, QObject* parent)
        : QAbstractTableModel(parent), shown(std::move(data)) {}

    int rowCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : static_cast<int>(shown->entries.size());
    }
    int columnCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : 2; }

    QVariant data(const QModelIndex& index, int role) const override {
        const bool isLabel = index.column() == 0;
        if (role == Qt::DisplayRole) {
            const auto entry = static_cast<std::size_t>(index.row());
            return isLabel ? shown->label(entry) : numberText(shown->entries[entry].count);
        }
        return role == Qt::TextAlignmentRole ? alignment(isLabel) : QVariant();
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
        if (orientation == Qt::Horizontal && role == Qt::DisplayRole) {
            return section == 0 ? shown->word : shown->countAxis;
        }
        return orientation == Qt::Horizontal && role == Qt::TextAlignmentRole ? alignment(section == 0)
                                                                              : QVariant();
    }

  private:
    static QVariant alignment(bool isLabel) {
        return QVariant::fromValue(Qt::AlignVCenter | (isLabel ? Qt::AlignLeft : Qt::AlignRight));
    }

    std::shared_ptr<const ChartData> shown;
};

}  // namespace

/// The rows of the table in the order that the user wants.
class NumbersOrder : public QSortFilterProxyModel {
  public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    void show(std::shared_ptr<const ChartData> data) {
        QAbstractItemModel* const before = sourceModel();
        shown = std::move(data);
        setSourceModel(new NumbersModel(shown, this));
        delete before;
    }

  protected:
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override {
        const ChartEntry& one = shown->entries[static_cast<std::size_t>(left.row())];
        const ChartEntry& other = shown->entries[static_cast<std::size_t>(right.row())];
        if (left.column() == countColumn) {
            return one.count < other.count;
        }
        return shown->form == ChartData::Form::days ? one.day < other.day
                                                    : NaturalOrder::compare(one.label, other.label) < 0;
    }

  private:
    std::shared_ptr<const ChartData> shown;
};

ChartNumbers::ChartNumbers(QWidget* parent) : QTableView(parent), order(new NumbersOrder(this)) {
    setModel(order);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setShowGrid(false);
    setAlternatingRowColors(true);
    setTabKeyNavigation(false);
    setWordWrap(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(true);
    horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    horizontalHeader()->setSortIndicatorShown(true);
    horizontalHeader()->setToolTip(QStringLiteral("Klick oder Eingabetaste: nach dieser Spalte sortieren"));
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, &ChartNumbers::sortBy);
}

void ChartNumbers::setData(std::shared_ptr<const ChartData> chartData) {
    shown = std::move(chartData);
    order->show(shown);
    setAccessibleName(shown->title + QStringLiteral(", Zahlen"));
    horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    horizontalHeader()->setSectionResizeMode(1, QHeaderView::Fixed);
    fitHeight();
}

void ChartNumbers::sortBy(int column) {
    // Of counts, the highest are what is looked for.
    const Qt::SortOrder first = column == countColumn ? Qt::DescendingOrder : Qt::AscendingOrder;
    const bool isSorted = order->sortColumn() == column;
    const bool isTurned = isSorted && order->sortOrder() != first;
    const Qt::SortOrder next =
        isSorted ? (first == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder) : first;
    order->sort(isTurned ? -1 : column, next);
    horizontalHeader()->setSortIndicator(isTurned ? -1 : column, next);
}

void ChartNumbers::fitHeight() {
    const QFontMetrics letters(font());
    verticalHeader()->setDefaultSectionSize(letters.height() + 6);
    if (shown == nullptr) {
        return;
    }
    const QString longest = numberText(shown->entries.empty() ? 0 : shown->highest());
    setColumnWidth(1,
                   std::max(letters.horizontalAdvance(longest), letters.horizontalAdvance(shown->countAxis)) +
                       2 * letters.height());
    const int rows = std::min(model()->rowCount(), mostRowsInSight);
    setFixedHeight(horizontalHeader()->sizeHint().height() +
                   std::max(rows, 1) * verticalHeader()->defaultSectionSize() + 2 * frameWidth());
}

void ChartNumbers::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        fitHeight();
    }
}

bool ChartNumbers::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        auto* key = static_cast<QKeyEvent*>(event);
        if (key->matches(QKeySequence::Copy) || key->matches(QKeySequence::SelectAll)) {
            // Meant for this table and not for the window's command of that key.
            event->accept();
            return true;
        }
    }
    return QTableView::event(event);
}

void ChartNumbers::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        copyChosen();
        return;
    }
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        sortBy(std::max(currentIndex().column(), 0));
        return;
    }
    QTableView::keyPressEvent(event);
}

void ChartNumbers::copyChosen() const {
    std::vector<int> rows;
    for (const QItemSelectionRange& block : selectionModel()->selection()) {
        for (int row = block.top(); row <= block.bottom(); ++row) {
            rows.push_back(row);
        }
    }
    std::ranges::sort(rows);
    QString text;
    for (const int row : rows) {
        text += shown->line(static_cast<std::size_t>(order->mapToSource(order->index(row, 0)).row()));
    }
    if (!text.isEmpty()) {
        QGuiApplication::clipboard()->setText(text);
    }
}

}  // namespace quillon
