// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Sheets/EDIExportSheet.h"

#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/BoundedField.h"
#include "Tallyrig/Text/Text.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

#include <array>
#include <utility>

namespace quillon {

namespace {

using tallyrig::EDIPointsMode;

const std::array<std::pair<EDIPointsMode, QString>, 3> pointsModes = {{
    {EDIPointsMode::distance, QStringLiteral("Distanz aus Locatoren (km)")},
    {EDIPointsMode::blank, QStringLiteral("Leer lassen (Auswerter rechnet)")},
    {EDIPointsMode::adifField, QStringLiteral("Aus ADIF-Feld")},
}};

}  // namespace

EDIExportSheet::EDIExportSheet(LogStore& logStore, QWidget* parent)
    : ExportSheet(logStore, QStringLiteral("EDI-Export (REG1TEST)"), parent) {
    const auto suggested = tallyrig::EDIHeader::suggested(store.document());
    header.callsign = suggested.callsign;
    header.locator = suggested.locator;
    header.contestName = suggested.contestName;
    header.band = suggested.band;
    header.operators = suggested.operators;
    header.dateStart = suggested.dateStart;
    header.dateEnd = suggested.dateEnd;

    QFormLayout* const general = addSection(QStringLiteral("Allgemein"));
    addField(general, QStringLiteral("Contest (TName)"), header.contestName);
    addField(general, QStringLiteral("Datum von (JJJJMMTT)"), header.dateStart);
    addField(general, QStringLiteral("bis"), header.dateEnd);
    addField(general, QStringLiteral("Rufzeichen (PCall)"), header.callsign);
    addField(general, QStringLiteral("Eigener Locator (PWWLo)"), header.locator);
    addField(general, QStringLiteral("Band (PBand)"), header.band);
    addField(general, QStringLiteral("Sektion (PSect)"), header.section);

    addPoints();

    QFormLayout* const station = addSection(QStringLiteral("Station (optional)"));
    addField(station, QStringLiteral("Operatoren (MOpe1)"), header.operators);
    addField(station, QStringLiteral("Club (PClub)"), header.club);
    addField(station, QStringLiteral("Sender (STXEq)"), header.txEquipment);
    addField(station, QStringLiteral("Empfänger (SRXEq)"), header.rxEquipment);
    addField(station, QStringLiteral("Leistung (SPowe)"), header.power);
    addField(station, QStringLiteral("Antenne (SAnte)"), header.antenna);
    addField(station, QStringLiteral("Höhe ü. NN (SAntH)"), header.antennaHeight);

    QFormLayout* const responsible = addSection(QStringLiteral("Verantwortlich (optional)"));
    addField(responsible, QStringLiteral("Name (RName)"), header.responsibleName);
    addField(responsible, QStringLiteral("Rufzeichen (RCall)"), header.responsibleCall);
    addField(responsible, QStringLiteral("Adresse"), header.address1);
    addField(responsible, QString(), header.address2)
        ->editor()
        .setAccessibleName(QStringLiteral("Adresse, zweite Zeile"));
    addField(responsible, QStringLiteral("PLZ"), header.postalCode);
    addField(responsible, QStringLiteral("Ort"), header.city);

    QFormLayout* const remarks = addSection(QStringLiteral("Bemerkungen (optional)"));
    addLongField(remarks, QStringLiteral("Remarks"), header.remarks);
    start();
}

void EDIExportSheet::addPoints() {
    QFormLayout* const points = addSection(QStringLiteral("QSO-Punkte"));
    QComboBox* const mode = addPicker(points, QStringLiteral("Wertung"));
    for (const auto& [pointsMode, label] : pointsModes) {
        mode->addItem(label, static_cast<int>(pointsMode));
    }
    BoundedLine* field = addField(points, QStringLiteral("ADIF-Feld"), header.pointsField);
    const auto offerField = [this, points, field] {
        points->setRowVisible(field, header.pointsMode == EDIPointsMode::adifField);
    };
    connect(mode, &QComboBox::activated, this, [this, mode, offerField] {
        header.pointsMode = static_cast<EDIPointsMode>(mode->currentData().toInt());
        offerField();
    });
    offerField();
}

bool EDIExportSheet::isComplete() const {
    return !tallyrig::text::trimmedOfBlanks(header.callsign).empty() &&
           !tallyrig::text::trimmedOfBlanks(header.locator).empty();
}

void EDIExportSheet::act() {
    store.exportEDI(header);
}

}  // namespace quillon
