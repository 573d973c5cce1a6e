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
    addField(general, QStringLiteral("Contest (TName)"), header.contestName,
             QStringLiteral("Der Name des Contests."));
    addField(general, QStringLiteral("Datum von (JJJJMMTT)"), header.dateStart,
             QStringLiteral("Der erste Tag des Contests, acht Ziffern: Jahr, Monat, Tag. Vorgeschlagen ist "
                            "der früheste im Log."));
    addField(general, QStringLiteral("bis"), header.dateEnd,
             QStringLiteral("Der letzte Tag des Contests, acht Ziffern: Jahr, Monat, Tag. Vorgeschlagen ist "
                            "der späteste im Log."));
    addField(general, QStringLiteral("Rufzeichen (PCall)"), header.callsign,
             QStringLiteral("Das Rufzeichen der Station im Contest. Ohne es gibt es keinen Export."));
    addField(general, QStringLiteral("Eigener Locator (PWWLo)"), header.locator,
             QStringLiteral("Der Locator, von dem aus gefunkt wurde, mit sechs Zeichen. Von ihm aus werden "
                            "die Entfernungen gerechnet; ohne ihn gibt es keinen Export."));
    addField(general, QStringLiteral("Band (PBand)"), header.band,
             QStringLiteral("Das Band, wie EDI es nennt, zum Beispiel 145 MHz oder 432 MHz. Eine EDI-Datei "
                            "gilt für ein Band; exportiert werden trotzdem alle QSOs des Logs."));
    addField(
        general, QStringLiteral("Sektion (PSect)"), header.section,
        QStringLiteral("Die Sektion oder Klasse, in der gewertet wird, wie die Ausschreibung sie nennt."));

    addPoints();

    QFormLayout* const station = addSection(QStringLiteral("Station (optional)"));
    addField(
        station, QStringLiteral("Operatoren (MOpe1)"), header.operators,
        QStringLiteral(
            "Die Rufzeichen der Operatoren, durch Komma getrennt; die ersten acht werden MOpe1 bis MOpe8."));
    addField(station, QStringLiteral("Club (PClub)"), header.club,
             QStringLiteral("Der Verein oder Ortsverband, für den gewertet wird."));
    addField(station, QStringLiteral("Sender (STXEq)"), header.txEquipment,
             QStringLiteral("Womit gesendet wurde: das Gerät oder Transverter und Endstufe."));
    addField(station, QStringLiteral("Empfänger (SRXEq)"), header.rxEquipment,
             QStringLiteral("Womit empfangen wurde: das Gerät oder Transverter und Vorverstärker."));
    addField(station, QStringLiteral("Leistung (SPowe)"), header.power,
             QStringLiteral("Die Sendeleistung in Watt."));
    addField(station, QStringLiteral("Antenne (SAnte)"), header.antenna,
             QStringLiteral("Welche Antenne benutzt wurde."));
    addField(station, QStringLiteral("Höhe ü. NN (SAntH)"), header.antennaHeight,
             QStringLiteral("Die Höhe der Antenne. Die Beschriftung meint Meter über dem Meer; manche "
                            "Auswerter erwarten „über Grund;über dem Meer“."));

    QFormLayout* const responsible = addSection(QStringLiteral("Verantwortlich (optional)"));
    addField(responsible, QStringLiteral("Name (RName)"), header.responsibleName,
             QStringLiteral("Wer für das Log verantwortlich ist und Fragen beantwortet."));
    addField(responsible, QStringLiteral("Rufzeichen (RCall)"), header.responsibleCall,
             QStringLiteral("Das Rufzeichen des Verantwortlichen."));
    addField(responsible, QStringLiteral("Adresse"), header.address1,
             QStringLiteral("Straße und Hausnummer. In der Datei stehen beide Zeilen als Anschrift der "
                            "Station (PAdr1, PAdr2)."));
    addField(responsible, QString(), header.address2,
             QStringLiteral("Die zweite Zeile der Anschrift (PAdr2)."))
        ->editor()
        .setAccessibleName(QStringLiteral("Adresse, zweite Zeile"));
    addField(responsible, QStringLiteral("PLZ"), header.postalCode,
             QStringLiteral("Die Postleitzahl des Verantwortlichen (RPoCo)."));
    addField(responsible, QStringLiteral("Ort"), header.city,
             QStringLiteral("Der Wohnort des Verantwortlichen (RCity)."));

    QFormLayout* const remarks = addSection(QStringLiteral("Bemerkungen (optional)"));
    addLongField(remarks, QStringLiteral("Remarks"), header.remarks,
                 QStringLiteral(
                     "Freie Bemerkungen für den Auswerter; sie stehen im Abschnitt [Remarks] vor den QSOs."));
    start();
}

void EDIExportSheet::addPoints() {
    QFormLayout* const points = addSection(QStringLiteral("QSO-Punkte"));
    QComboBox* const mode = addPicker(
        points, QStringLiteral("Wertung"),
        QStringLiteral(
            "Woher die Punkte jedes QSOs kommen. Distanz: die Kilometer zwischen den Locatoren, für eine "
            "Dublette 0. Leer: der Auswerter rechnet sie. Aus ADIF-Feld: was im QSO steht."));
    for (const auto& [pointsMode, label] : pointsModes) {
        mode->addItem(label, static_cast<int>(pointsMode));
    }
    BoundedLine* field =
        addField(points, QStringLiteral("ADIF-Feld"), header.pointsField,
                 QStringLiteral("Aus welchem ADIF-Feld die Punkte jedes QSOs kommen. Gelesen wird eine Zahl, "
                                "auf ganze gerundet; Dubletten zählen dabei mit."));
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
