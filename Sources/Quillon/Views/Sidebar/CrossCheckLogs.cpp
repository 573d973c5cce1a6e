#include "Quillon/Views/Sidebar/CrossCheckLogs.h"

#include "Quillon/Stores/CrossCheckStore.h"
#include "Quillon/Views/Controls/BoundedField.h"
#include "Quillon/Views/Controls/Icons.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/SidebarSection.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Tallyrig/Text/VisibleText.h"

#include <QAbstractListModel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>
#include <string_view>

namespace quillon {

namespace {

constexpr int shownRows = 8;

QString shown(std::string_view text) {
    return toQString(tallyrig::text::visibleText(cutToShow(text)));
}

QString ownerText(const CrossCheckFile& entry) {
    const std::string owner = entry.effectiveOwner();
    return owner.empty() ? QStringLiteral("(Inhaber unbekannt)") : shown(owner);
}

}  // namespace

class CrossCheckLogs::Model : public QAbstractListModel {
  public:
    Model(const CrossCheckStore& crossStore, QObject* parent)
        : QAbstractListModel(parent), store(crossStore), count(store.entries().size()) {}

    /// Another owner leaves the rows in their places; anything else makes them anew.
    void follow() {
        if (store.entries().size() == count) {
            emit dataChanged(index(0, 0), index(rowCount() - 1, 0));
            return;
        }
        beginResetModel();
        count = store.entries().size();
        endResetModel();
    }
    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(count);
    }
    QVariant data(const QModelIndex& index, int role) const override {
        if (!index.isValid() || static_cast<std::size_t>(index.row()) >= store.entries().size()) {
            return {};
        }
        const CrossCheckFile& entry = store.entries()[static_cast<std::size_t>(index.row())];
        switch (role) {
            case Qt::DisplayRole:
                return QString(ownerText(entry) + QStringLiteral(" – ") + shown(entry.name()));
            case Qt::ToolTipRole:
                return plainToolTip(shown(entry.path) + QLatin1Char('\n') +
                                    numberText(entry.document.records().size()) + QStringLiteral(" QSOs"));
            default:
                return {};
        }
    }

  private:
    const CrossCheckStore& store;
    std::size_t count;
};

CrossCheckLogs::CrossCheckLogs(CrossCheckStore& crossStore, QWidget* parent)
    : QWidget(parent), store(crossStore), model(new Model(store, this)), list(new QListView(this)) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(6);
    list->setModel(model);
    list->setUniformItemSizes(true);
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setTextElideMode(Qt::ElideRight);
    list->setAccessibleName(QStringLiteral("Logs"));
    list->setFixedHeight(shownRows * (list->fontMetrics().height() + 4));
    column->addWidget(list);

    details = new QWidget(this);
    auto* detailsColumn = new QVBoxLayout(details);
    detailsColumn->setContentsMargins(0, 0, 0, 0);
    auto* section = new SidebarSection(QString(), details);
    owner = &section->addText(QStringLiteral("Inhaber"), {},
                              QStringLiteral("Das Rufzeichen der Station, deren Log das ist"));
    auto* remove =
        new QPushButton(icon(QStringLiteral("list-remove")), QStringLiteral("Log entfernen"), section);
    section->add(remove);
    detailsColumn->addWidget(section);
    column->addWidget(details);

    removeAll =
        new QPushButton(icon(QStringLiteral("edit-clear-all")), QStringLiteral("Alle entfernen"), this);
    column->addWidget(removeAll);

    const auto removeChosen = [this] {
        if (const auto id = chosen()) {
            store.remove(*id);
        }
    };
    connect(remove, &QPushButton::clicked, this, removeChosen);
    new QShortcut(Qt::Key_Delete, list, this, removeChosen, Qt::WidgetShortcut);
    connect(removeAll, &QPushButton::clicked, this, [this] { store.removeAll(); });
    connect(owner, &QLineEdit::textEdited, this, [this](const QString& text) {
        if (const auto id = chosen()) {
            store.setOwnerOverride(*id, text.toStdString());
        }
    });
    connect(list->selectionModel(), &QItemSelectionModel::currentChanged, this, &CrossCheckLogs::showChosen);
    connect(model, &QAbstractItemModel::modelReset, this, &CrossCheckLogs::showChosen);
    connect(&store, &CrossCheckStore::entriesChanged, this, &CrossCheckLogs::refresh);
    refresh();
}

void CrossCheckLogs::refresh() {
    const int row = list->currentIndex().row();
    const int before = model->rowCount();
    model->follow();
    if (row >= 0 && model->rowCount() < before && model->rowCount() > 0) {
        // The next one takes the place of a log that was removed.
        list->setCurrentIndex(model->index(std::min(row, model->rowCount() - 1), 0));
    }
    const bool hasLogs = model->rowCount() > 0;
    list->setVisible(hasLogs);
    removeAll->setVisible(hasLogs);
    showChosen();
}

void CrossCheckLogs::showChosen() {
    const int row = list->currentIndex().row();
    const bool isChosen = row >= 0 && row < model->rowCount();
    details->setVisible(isChosen);
    if (isChosen) {
        const CrossCheckFile& entry = store.entries()[static_cast<std::size_t>(row)];
        const QString text = toQString(cutToShow(entry.ownerOverride));
        if (owner->text() != text) {
            owner->setText(text);
        }
        owner->setPlaceholderText(entry.detectedOwner.empty() ? QStringLiteral("Rufzeichen")
                                                              : shown(entry.detectedOwner));
    }
}

std::optional<tallyrig::UUID> CrossCheckLogs::chosen() const {
    const int row = list->currentIndex().row();
    return row >= 0 && row < model->rowCount()
               ? std::optional(store.entries()[static_cast<std::size_t>(row)].id)
               : std::nullopt;
}

}  // namespace quillon
