// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Sheets/CabrilloExportSheet.h"

#include "Quillon/Stores/LogStore.h"
#include "Tallyrig/Text/Text.h"

namespace quillon {

namespace {

const QStringList versions = {QStringLiteral("3.0"), QStringLiteral("2.0")};
const QStringList operatorCategories = {QString(), QStringLiteral("SINGLE-OP"), QStringLiteral("MULTI-OP"),
                                        QStringLiteral("CHECKLOG")};
const QStringList powerCategories = {QString(), QStringLiteral("HIGH"), QStringLiteral("LOW"),
                                     QStringLiteral("QRP")};
/// Without an empty choice: a mode, once chosen, can only be changed.
const QStringList modeCategories = {QStringLiteral("MIXED"), QStringLiteral("CW"),   QStringLiteral("SSB"),
                                    QStringLiteral("RTTY"),  QStringLiteral("DIGI"), QStringLiteral("FM")};
const QStringList assistedCategories = {QString(), QStringLiteral("NON-ASSISTED"),
                                        QStringLiteral("ASSISTED")};
const QStringList transmitterCategories = {QString(),
                                           QStringLiteral("ONE"),
                                           QStringLiteral("TWO"),
                                           QStringLiteral("LIMITED"),
                                           QStringLiteral("UNLIMITED"),
                                           QStringLiteral("SWL")};

}  // namespace

CabrilloExportSheet::CabrilloExportSheet(LogStore& logStore, QWidget* parent)
    : ExportSheet(logStore, QStringLiteral("Cabrillo-Export"), parent) {
    const auto suggested = tallyrig::CabrilloHeader::suggested(store.document());
    header.version = "3.0";
    header.callsign = suggested.callsign;
    header.contest = suggested.contest;

    QFormLayout* const general = addSection(QString());
    addChoice(general, QStringLiteral("Cabrillo-Version"), versions, header.version,
              QStringLiteral("Die Ausgabe des Cabrillo-Formats. 3.0 ist die heute übliche."));
    addField(general, QStringLiteral("Rufzeichen (CALLSIGN)"), header.callsign,
             QStringLiteral("Das Rufzeichen der Station, unter dem das Log eingereicht wird. Ohne es gibt es "
                            "keinen Export."));
    addField(general, QStringLiteral("Contest"), header.contest,
             QStringLiteral("Der Name des Contests, wie der Veranstalter ihn in Cabrillo-Logs erwartet, zum "
                            "Beispiel CQ-WW-CW."));

    QFormLayout* const category = addSection(QStringLiteral("Kategorie"));
    addChoice(category, QStringLiteral("Operator"), operatorCategories, header.categoryOperator,
              QStringLiteral("Ob ein Operator, mehrere, oder nur ein Checklog (CATEGORY-OPERATOR). Ein "
                             "Checklog wird geprüft, aber nicht gewertet."));
    addChoice(category, QStringLiteral("Leistung"), powerCategories, header.categoryPower,
              QStringLiteral("Die Leistungsklasse (CATEGORY-POWER). Welche Leistung zu welcher gehört, sagt "
                             "die Ausschreibung."));
    addChoice(category, QStringLiteral("Modus"), modeCategories, header.categoryMode,
              QStringLiteral("Die Betriebsart, in der gewertet wird (CATEGORY-MODE). Die Betriebsarten der "
                             "QSOs ändert sie nicht."));
    addField(category, QStringLiteral("Band"), header.categoryBand,
             QStringLiteral("Das Band, auf dem gewertet wird, etwa 20M, oder ALL für alle (CATEGORY-BAND). "
                            "Exportiert werden immer alle QSOs."));
    addChoice(category, QStringLiteral("Assisted"), assistedCategories, header.categoryAssisted,
              QStringLiteral("Ob Hilfe von außen benutzt wurde, etwa ein DX-Cluster (CATEGORY-ASSISTED). "
                             "Leer: die Zeile fehlt."));
    addChoice(category, QStringLiteral("Sender (TX)"), transmitterCategories, header.categoryTransmitter,
              QStringLiteral(
                  "Mit wie vielen Sendern gearbeitet wurde (CATEGORY-TRANSMITTER). Leer: die Zeile fehlt."));

    QFormLayout* const details = addSection(QStringLiteral("Angaben (optional)"));
    addField(
        details, QStringLiteral("Operatoren"), header.operators,
        QStringLiteral("Die Rufzeichen aller Operatoren (OPERATORS). Leer: das Rufzeichen der Station."));
    addField(details, QStringLiteral("Name"), header.name,
             QStringLiteral("Der Name dessen, der das Log einreicht (NAME)."));
    addField(details, QStringLiteral("E-Mail"), header.email,
             QStringLiteral("Wohin der Veranstalter schreibt, wenn er Fragen hat (EMAIL)."));
    addField(details, QStringLiteral("Punktzahl (CLAIMED-SCORE)"), header.claimedScore,
             QStringLiteral("Das Ergebnis, das man selbst ausgerechnet hat (CLAIMED-SCORE), zum Beispiel mit "
                            "der Ansicht Contest. Leer: die Zeile fehlt."));
    addLongField(
        details, QStringLiteral("Soapbox"), header.soapbox,
        QStringLiteral("Worte an den Veranstalter; jede Zeile wird eine Zeile SOAPBOX, leere fallen weg."));
    start();
}

bool CabrilloExportSheet::isComplete() const {
    return !tallyrig::text::trimmedOfBlanks(header.callsign).empty();
}

void CabrilloExportSheet::act() {
    store.exportCabrillo(header);
}

}  // namespace quillon
