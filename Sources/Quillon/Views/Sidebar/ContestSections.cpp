// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Sidebar/ContestSections.h"

#include "Quillon/Catalogue/Contests.h"
#include "Quillon/Stores/ContestStore.h"
#include "Quillon/Views/Controls/Labels.h"
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
    auto* picker = new ContestPicker(store, section);
    explain(*picker,
            QStringLiteral("Nach welchen Regeln gewertet wird. Wer tippt, findet den ersten Contest, in dem "
                           "das Getippte steht; „Eigen / Generisch“ am Ende der Liste wertet nach eigenen "
                           "Regeln. Die Wahl gilt auch für den Cross-Check."));
    section->addUnderHeading(picker);
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
                           "Österreich"),
            QStringLiteral("Die Nummer des eigenen Landes in der DXCC-Liste. Von ihr hängt ab, was ein QSO "
                           "mit dem eigenen Land zählt, und in manchen Contesten, welche Regeln gelten. "
                           "„tallyrig call RUFZEICHEN“ nennt sie."));
    addText(*section, QStringLiteral("Kontinent"), &OwnStation::myContinent,
            QStringLiteral("EU, NA, SA, AF, AS, OC oder AN"),
            QStringLiteral("Der eigene Kontinent. Viele Conteste geben für QSOs auf dem eigenen Kontinent "
                           "andere Punkte als für die mit anderen."));
    addText(
        *section, QStringLiteral("CQ-Zone"), &OwnStation::myCQZone, QStringLiteral("1 bis 40"),
        QStringLiteral(
            "Die eigene Zone in der Einteilung von CQ. Nur von Bedeutung, wo die Regeln nach ihr fragen."));
    addText(*section, QStringLiteral("ITU-Zone"), &OwnStation::myITUZone, QStringLiteral("1 bis 90"),
            QStringLiteral("Die eigene Zone in der Einteilung der ITU. Der IARU-Contest gibt für QSOs in der "
                           "eigenen Zone 1 Punkt."));
    addText(*section, QStringLiteral("Locator"), &OwnStation::myGrid,
            QStringLiteral("Gilt für QSOs, in denen kein eigener Locator steht, z. B. JN47PN"),
            QStringLiteral("Der eigene Locator, von dem aus Entfernungen gerechnet werden. Er gilt nur für "
                           "QSOs ohne MY_GRIDSQUARE. Sechs Zeichen geben genauere Kilometer als vier."));
    return section;
}

void ContestSections::addText(SidebarSection& section, const QString& label, std::string OwnStation::*member,
                              const QString& toolTip, const QString& meaning) {
    QLineEdit& field = section.addText(label, store.ownStation().*member, toolTip, meaning);
    connect(&field, &QLineEdit::textEdited, this, [this, member](const QString& text) {
        OwnStation changed = store.ownStation();
        changed.*member = text.toStdString();
        store.setOwnStation(std::move(changed));
    });
}

}  // namespace quillon
