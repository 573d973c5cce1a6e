// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Sidebar/CrossCheckLogs.h"

#include "Quillon/Platform/Desktop/FontMeasurer.h"
#include "Quillon/Stores/CrossCheckStore.h"
#include "Quillon/Views/Controls/Colors.h"
#include "Quillon/Views/Controls/Icons.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Quillon/Views/Controls/Tone.h"
#include "Tallyrig/Text/VisibleText.h"

#include <QAbstractTableModel>
#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <optional>
#include <string_view>
#include <vector>

namespace quillon {

namespace {

enum Column { ownerColumn, nameColumn, removeColumn };
constexpr int columns = 3;
constexpr int fieldGapPx = 2;

QString shown(std::string_view text) {
    return toQString(tallyrig::text::visibleText(cutToShow(text)));
}

QRect fieldIn(const QRect& cell) {
    return cell.adjusted(fieldGapPx, fieldGapPx, -fieldGapPx, -fieldGapPx);
}

}  // namespace

/// A row for each log, in the order of the store.
class CrossCheckLogs::Model : public QAbstractTableModel {
  public:
    Model(CrossCheckStore& crossStore, QObject* parent) : QAbstractTableModel(parent), store(crossStore) {}

    /// Whether the rows are about the logs of the store.
    bool isUpToDate() const { return std::ranges::equal(logs, store.entries(), {}, {}, &CrossCheckFile::id); }
    void makeRows() {
        beginResetModel();
        logs.clear();
        for (const CrossCheckFile& entry : store.entries()) {
            logs.push_back(entry.id);
        }
        endResetModel();
    }
    void tellOwners() { emit dataChanged(index(0, ownerColumn), index(rowCount() - 1, ownerColumn)); }

    std::optional<tallyrig::UUID> logAt(int row) const {
        return row >= 0 && row < rowCount() ? std::optional(logs[static_cast<std::size_t>(row)])
                                            : std::nullopt;
    }
    /// -1 if it is not there.
    int rowOf(tallyrig::UUID log) const {
        const auto found = std::ranges::find(logs, log);
        return found == logs.end() ? -1 : static_cast<int>(found - logs.begin());
    }
    const CrossCheckFile* entryAt(const QModelIndex& index) const {
        const auto row = static_cast<std::size_t>(index.row());
        return index.isValid() && row < store.entries().size() && store.entries()[row].id == logs[row]
                   ? &store.entries()[row]
                   : nullptr;
    }

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(logs.size());
    }
    int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : columns; }
    Qt::ItemFlags flags(const QModelIndex& index) const override {
        return QAbstractTableModel::flags(index) |
               (index.column() == ownerColumn ? Qt::ItemIsEditable : Qt::NoItemFlags);
    }
    QVariant data(const QModelIndex& index, int role) const override {
        const CrossCheckFile* const entry = entryAt(index);
        if (entry == nullptr) {
            return {};
        }
        switch (index.column()) {
            case ownerColumn:
                return ownerData(*entry, role);
            case nameColumn:
                return role == Qt::DisplayRole ? QVariant(shown(entry->name()))
                       : role == Qt::ToolTipRole
                           ? QVariant(plainToolTip(shown(entry->path) + QLatin1Char('\n') +
                                                   numberText(entry->document.records().size()) +
                                                   QStringLiteral(" QSOs")))
                           : QVariant();
            default:
                return role == Qt::ToolTipRole || role == Qt::AccessibleTextRole
                           ? QVariant(QStringLiteral("Log entfernen"))
                           : QVariant();
        }
    }
    bool setData(const QModelIndex& index, const QVariant& value, int role) override {
        const auto log = logAt(index.row());
        if (!log || role != Qt::EditRole) {
            return false;
        }
        store.setOwnerOverride(*log, value.toString().toStdString());
        return true;
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
        if (orientation != Qt::Horizontal || (role != Qt::DisplayRole && role != Qt::TextAlignmentRole)) {
            return {};
        }
        return role == Qt::TextAlignmentRole ? QVariant(Qt::AlignLeft | Qt::AlignVCenter)
               : section == ownerColumn      ? QVariant(QStringLiteral("Inhaber"))
               : section == nameColumn       ? QVariant(QStringLiteral("Log"))
                                             : QVariant(QString());
    }

  private:
    static QVariant ownerData(const CrossCheckFile& entry, int role) {
        const std::string owner = entry.effectiveOwner();
        switch (role) {
            case Qt::DisplayRole:
                return owner.empty() ? QStringLiteral("unbekannt") : shown(owner);
            case Qt::EditRole:
                return toQString(cutToShow(owner));
            case Qt::AccessibleTextRole:
                return owner.empty() ? QStringLiteral("(Inhaber unbekannt)") : shown(owner);
            case Qt::ToolTipRole:
                return plainToolTip((owner.empty() ? QString() : shown(owner) + QLatin1Char('\n')) +
                                    QStringLiteral("Das Rufzeichen der Station, deren Log das ist"));
            default:
                return {};
        }
    }

    CrossCheckStore& store;
    std::vector<tallyrig::UUID> logs;
};

/// Paints the owner as the field that it becomes when it is edited, and what removes the log as a button.
class CrossCheckLogs::Delegate : public QStyledItemDelegate {
  public:
    Delegate(const Model& rows, QObject* parent) : QStyledItemDelegate(parent), model(rows) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyleOptionViewItem item = option;
        initStyleOption(&item, index);
        calmSelection(item.palette, item.widget);
        const bool hasKeyboard = item.state.testFlag(QStyle::State_HasFocus);
        const QString text = item.text;
        item.text.clear();
        item.state &= ~QStyle::State_HasFocus;
        const QStyle& style = item.widget != nullptr ? *item.widget->style() : *QApplication::style();
        style.drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);
        painter->save();
        if (index.column() == ownerColumn) {
            paintField(*painter, style, item, text, hasKeyboard, isOwnerKnown(index));
        } else if (index.column() == nameColumn) {
            const bool isSelected = item.state.testFlag(QStyle::State_Selected);
            painter->setFont(smallFont());
            painter->setPen(
                item.palette.color(isSelected ? QPalette::HighlightedText : QPalette::PlaceholderText));
            const QRect place = item.rect.adjusted(fieldGapPx, 0, -fieldGapPx, 0);
            painter->drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                              painter->fontMetrics().elidedText(text, Qt::ElideMiddle, place.width()));
        } else {
            paintButton(*painter, style, item, hasKeyboard);
        }
        painter->restore();
    }

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&,
                          const QModelIndex& index) const override {
        constexpr int longestOwner = 1000;
        auto* field = new QLineEdit(parent);
        field->setMaxLength(longestOwner);
        field->setAccessibleName(QStringLiteral("Inhaber"));
        const CrossCheckFile* const entry = model.entryAt(index);
        field->setPlaceholderText(entry == nullptr || entry->detectedOwner.empty()
                                      ? QStringLiteral("Rufzeichen")
                                      : shown(entry->detectedOwner));
        return field;
    }
    void setEditorData(QWidget* editor, const QModelIndex& index) const override {
        auto& field = static_cast<QLineEdit&>(*editor);
        if (!field.isModified()) {
            field.setText(index.data(Qt::EditRole).toString());
        }
    }
    /// Only what was typed: an owner that the field does not hold whole stays as it is.
    void setModelData(QWidget* editor, QAbstractItemModel* rows, const QModelIndex& index) const override {
        const auto& field = static_cast<const QLineEdit&>(*editor);
        if (field.isModified()) {
            rows->setData(index, field.text(), Qt::EditRole);
        }
    }
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex&) const override {
        editor->setGeometry(fieldIn(option.rect));
    }

  private:
    bool isOwnerKnown(const QModelIndex& index) const {
        const CrossCheckFile* const entry = model.entryAt(index);
        return entry != nullptr && !(entry->detectedOwner.empty() && entry->ownerOverride.empty());
    }

    static void paintField(QPainter& painter, const QStyle& style, const QStyleOptionViewItem& item,
                           const QString& text, bool hasKeyboard, bool isKnown) {
        QStyleOptionFrame field;
        field.rect = fieldIn(item.rect);
        field.palette = item.palette;
        field.lineWidth = style.pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, item.widget);
        field.state = QStyle::State_Enabled | QStyle::State_Sunken;
        field.state.setFlag(QStyle::State_HasFocus, hasKeyboard);
        style.drawPrimitive(QStyle::PE_PanelLineEdit, &field, &painter, item.widget);
        constexpr int paddingPx = 4;
        const QRect place = field.rect.adjusted(paddingPx, 0, -paddingPx, 0);
        const QColor ground = item.palette.color(QPalette::Base);
        painter.setFont(item.font);
        painter.setPen(isKnown ? item.palette.color(QPalette::Text)
                               : toneColor(Tone::error, item.palette, ground));
        painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                         item.fontMetrics.elidedText(text, Qt::ElideRight, place.width()));
    }

    static void paintButton(QPainter& painter, const QStyle& style, const QStyleOptionViewItem& item,
                            bool hasKeyboard) {
        constexpr int iconPx = 16;
        if (hasKeyboard || item.state.testFlag(QStyle::State_MouseOver)) {
            QStyleOptionButton button;
            button.rect = fieldIn(item.rect);
            button.palette = item.palette;
            button.state = QStyle::State_Enabled | QStyle::State_Raised;
            button.state.setFlag(QStyle::State_HasFocus, hasKeyboard);
            style.drawPrimitive(QStyle::PE_PanelButtonCommand, &button, &painter, item.widget);
        }
        QRect place(0, 0, iconPx, iconPx);
        place.moveCenter(item.rect.center());
        icon(QStringLiteral("list-remove")).paint(&painter, place);
    }

    const Model& model;
};

/// The owner is edited where it stands: by a click, F2, Return or by typing. Tab goes on to the next owner.
class CrossCheckLogs::Table : public QTableView {
  public:
    Table(CrossCheckStore& crossStore, Model& rows, QWidget* parent)
        : QTableView(parent), store(crossStore), logs(rows) {
        setModel(&logs);
        setItemDelegate(new Delegate(logs, this));
        setAccessibleName(QStringLiteral("Logs"));
        setShowGrid(false);
        setSelectionBehavior(QAbstractItemView::SelectRows);
        setSelectionMode(QAbstractItemView::SingleSelection);
        setEditTriggers(QAbstractItemView::AnyKeyPressed);
        setTabKeyNavigation(false);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        viewport()->setAttribute(Qt::WA_Hover);
        // The fields stand out from it.
        viewport()->setBackgroundRole(QPalette::Window);
        verticalHeader()->hide();
        verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
        horizontalHeader()->setHighlightSections(false);
        horizontalHeader()->setSectionsClickable(false);
        horizontalHeader()->setMinimumSectionSize(1);
        horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
        horizontalHeader()->setSectionResizeMode(nameColumn, QHeaderView::Stretch);
        connect(this, &QTableView::clicked, this, &Table::press);
        layOut();
    }

    /// As high as its rows, up to some.
    void layOut() {
        constexpr int mostRows = 8;
        constexpr int fieldPaddingPx = 8;
        const QFontMetrics letters(font());
        const int rowHeight = letters.height() + fieldPaddingPx + 2 * fieldGapPx;
        verticalHeader()->setDefaultSectionSize(rowHeight);
        setColumnWidth(ownerColumn,
                       letters.horizontalAdvance(QStringLiteral("HB9QXY/P")) + 4 * fieldPaddingPx);
        setColumnWidth(removeColumn, rowHeight);
        setFixedHeight(horizontalHeader()->sizeHint().height() +
                       std::clamp(logs.rowCount(), 1, mostRows) * rowHeight + 2 * frameWidth());
    }
    /// What is typed counts.
    void endEditing() {
        if (state() == EditingState) {
            QWidget* const editor = indexWidget(currentIndex());
            commitData(editor);
            closeEditor(editor, QAbstractItemDelegate::NoHint);
        }
    }

  protected:
    void changeEvent(QEvent* event) override {
        QTableView::changeEvent(event);
        if (event->type() == QEvent::FontChange) {
            layOut();
        }
    }
    bool event(QEvent* event) override {
        if (event->type() == QEvent::ShortcutOverride && isOwnKey(static_cast<QKeyEvent&>(*event))) {
            // Meant for this list and not for the window's command of that key.
            event->accept();
            return true;
        }
        return QTableView::event(event);
    }
    void keyPressEvent(QKeyEvent* event) override {
        const QModelIndex current = currentIndex();
        if (!current.isValid() || state() == EditingState) {
            QTableView::keyPressEvent(event);
        } else if (event->key() == Qt::Key_Delete && event->modifiers() == Qt::NoModifier) {
            remove(current.row());
        } else if (isOwnKey(*event)) {
            // F2 is about the owner wherever it is pressed.
            press(event->key() == Qt::Key_F2 ? current.siblingAtColumn(ownerColumn) : current);
        } else {
            QTableView::keyPressEvent(event);
        }
    }
    /// From owner to owner, or to the button beside it.
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override {
        const QModelIndex current = currentIndex();
        switch (action) {
            case MoveNext:
                return logs.index(current.row() + 1, ownerColumn);
            case MovePrevious:
                return logs.index(current.row() - 1, ownerColumn);
            case MoveLeft:
                return current.siblingAtColumn(ownerColumn);
            case MoveRight:
                return current.siblingAtColumn(removeColumn);
            case MoveHome:
                return logs.index(0, std::max(current.column(), 0));
            case MoveEnd:
                return logs.index(logs.rowCount() - 1, std::max(current.column(), 0));
            default:
                return QTableView::moveCursor(action, modifiers);
        }
    }

  private:
    static bool isOwnKey(const QKeyEvent& event) {
        constexpr int keys[] = {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_F2, Qt::Key_Delete};
        return (event.modifiers() & ~Qt::KeypadModifier) == 0 && std::ranges::count(keys, event.key()) > 0;
    }
    void press(const QModelIndex& index) {
        if (index.column() == removeColumn) {
            remove(index.row());
        } else if (index.column() == ownerColumn) {
            setCurrentIndex(index);
            edit(index);
        }
    }
    void remove(int row) {
        if (const auto log = logs.logAt(row)) {
            store.remove(*log);
        }
    }

    CrossCheckStore& store;
    Model& logs;
};

CrossCheckLogs::CrossCheckLogs(CrossCheckStore& crossStore, QWidget* parent)
    : QWidget(parent),
      store(crossStore),
      model(new Model(store, this)),
      table(new Table(store, *model, this)) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(6);
    column->addWidget(table);
    removeAll =
        new QPushButton(icon(QStringLiteral("edit-clear-all")), QStringLiteral("Alle entfernen"), this);
    column->addWidget(removeAll);
    connect(removeAll, &QPushButton::clicked, this, [this] { store.removeAll(); });
    connect(&store, &CrossCheckStore::entriesChanged, this, &CrossCheckLogs::refresh);
    refresh();
}

void CrossCheckLogs::refresh() {
    if (isRefreshing) {
        return;
    }
    if (model->isUpToDate()) {
        model->tellOwners();
    } else {
        const QScopedValueRollback guard(isRefreshing, true);
        table->endEditing();
        const QModelIndex before = table->currentIndex();
        const auto chosen = model->logAt(before.row());
        model->makeRows();
        if (chosen && model->rowCount() > 0) {
            // The next one takes the place of a log that was removed.
            const int row = model->rowOf(*chosen);
            table->setCurrentIndex(model->index(
                row >= 0 ? row : std::min(before.row(), model->rowCount() - 1), before.column()));
        }
        table->layOut();
    }
    const bool hasLogs = model->rowCount() > 0;
    table->setVisible(hasLogs);
    removeAll->setVisible(hasLogs);
}

}  // namespace quillon
