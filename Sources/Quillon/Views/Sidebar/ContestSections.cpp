// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Sidebar/ContestSections.h"

#include "Quillon/Catalogue/Contests.h"
#include "Quillon/Stores/ContestStore.h"
#include "Quillon/Views/Controls/SidebarSection.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Quillon/Views/Sidebar/ContestPicker.h"
#include "Quillon/Views/Sidebar/GenericContestForm.h"

#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include <utility>

namespace quillon {

ContestSections::ContestSections(ContestStore& contestStore, QWidget* parent)
    : QWidget(parent), store(contestStore) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(18);
    column->addWidget(contest());
    column->addWidget(ownStation());
    auto* form = new GenericContestForm(store, this);
    column->addWidget(form);
    const auto showForm = [this, form] { form->setVisible(store.contest() == Contest::generic); };
    connect(&store, &ContestStore::contestChanged, form, showForm);
    showForm();
}

SidebarSection* ContestSections::contest() {
    auto* section = new SidebarSection(QStringLiteral("Contest"), this);
    section->addUnderHeading(new ContestPicker(store, section));
    QLabel* note = section->addNote(QString());
    const auto show = [this, note] { note->setText(toQString(info(store.contest()))); };
    connect(&store, &ContestStore::contestChanged, note, show);
    show();
    return section;
}

SidebarSection* ContestSections::ownStation() {
    auto* section = new SidebarSection(QStringLiteral("Mein Standort"), this);
    addText(*section, QStringLiteral("DXCC-Gebiet"), &OwnStation::myDXCC,
            QStringLiteral("Die Nummer des Gebiets, z. B. 287 für die Schweiz, 230 für Deutschland, 206 für "
                           "Österreich"));
    addText(*section, QStringLiteral("Kontinent"), &OwnStation::myContinent,
            QStringLiteral("EU, NA, SA, AF, AS, OC oder AN"));
    addText(*section, QStringLiteral("CQ-Zone"), &OwnStation::myCQZone, QStringLiteral("1 bis 40"));
    addText(*section, QStringLiteral("ITU-Zone"), &OwnStation::myITUZone, QStringLiteral("1 bis 90"));
    addText(*section, QStringLiteral("Locator"), &OwnStation::myGrid,
            QStringLiteral("Gilt für QSOs, in denen kein eigener Locator steht, z. B. JN47PN"));
    return section;
}

void ContestSections::addText(SidebarSection& section, const QString& label, std::string OwnStation::*member,
                              const QString& toolTip) {
    QLineEdit& field = section.addText(label, store.ownStation().*member, toolTip);
    connect(&field, &QLineEdit::textEdited, this, [this, member](const QString& text) {
        OwnStation changed = store.ownStation();
        changed.*member = text.toStdString();
        store.setOwnStation(std::move(changed));
    });
}

}  // namespace quillon
