// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Table/ColumnToolbar.h"

#include "Quillon/Catalogue/ADIFFieldCatalog.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/Icons.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Quillon/Views/Table/ColumnCommands.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>

namespace quillon {
namespace {

QPushButton* flatButton(const QString& title, const QString& iconName, QWidget* parent) {
    auto* button = new QPushButton(icon(iconName), title, parent);
    button->setFlat(true);
    button->setAutoDefault(false);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

}  // namespace

ColumnToolbar::ColumnToolbar(LogStore& logStore, QWidget* parent)
    : QWidget(parent),
      store(logStore),
      count(new QLabel(this)),
      menu(new QMenu(this)),
      clearSort(flatButton(QStringLiteral("Sortierung aufheben"), QStringLiteral("view-sort"), this)) {
    count->setForegroundRole(QPalette::PlaceholderText);
    QPushButton* add = flatButton(QStringLiteral("Spalte hinzufügen"), QStringLiteral("list-add"), this);
    add->setMenu(menu);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 2, 8, 2);
    layout->setSpacing(8);
    layout->addWidget(count);
    layout->addWidget(add);
    layout->addWidget(clearSort);
    layout->addStretch(1);

    connect(menu, &QMenu::aboutToShow, this, &ColumnToolbar::fillMenu);
    connect(clearSort, &QPushButton::clicked, &store, &LogStore::clearSort);
    connect(&store, &LogStore::columnsChanged, this, &ColumnToolbar::refresh);
    connect(&store, &LogStore::sortChanged, this, &ColumnToolbar::refresh);
    refresh();
}

QMenu& ColumnToolbar::addMenu() {
    fillMenu();
    return *menu;
}

void ColumnToolbar::refresh() {
    count->setText(numberText(store.columns().size()) + QStringLiteral(" Spalten"));
    clearSort->setVisible(store.sortColumn().has_value());
}

void ColumnToolbar::fillMenu() {
    menu->clear();
    for (const std::string& field : fieldsToAdd(store)) {
        const std::string title = ADIFFieldCatalog::label(field) + "  (" + field + ")";
        menu->addAction(toQString(title), this, [this, field] { store.addColumn(field); });
    }
    menu->addSeparator();
    menu->addAction(QStringLiteral("Eigenes Feld …"), this, &ColumnToolbar::customFieldRequested);
}

}  // namespace quillon
