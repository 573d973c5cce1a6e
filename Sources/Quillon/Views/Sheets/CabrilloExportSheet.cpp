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
    addChoice(general, QStringLiteral("Cabrillo-Version"), versions, header.version);
    addField(general, QStringLiteral("Rufzeichen (CALLSIGN)"), header.callsign);
    addField(general, QStringLiteral("Contest"), header.contest);

    QFormLayout* const category = addSection(QStringLiteral("Kategorie"));
    addChoice(category, QStringLiteral("Operator"), operatorCategories, header.categoryOperator);
    addChoice(category, QStringLiteral("Leistung"), powerCategories, header.categoryPower);
    addChoice(category, QStringLiteral("Modus"), modeCategories, header.categoryMode);
    addField(category, QStringLiteral("Band"), header.categoryBand);
    addChoice(category, QStringLiteral("Assisted"), assistedCategories, header.categoryAssisted);
    addChoice(category, QStringLiteral("Sender (TX)"), transmitterCategories, header.categoryTransmitter);

    QFormLayout* const details = addSection(QStringLiteral("Angaben (optional)"));
    addField(details, QStringLiteral("Operatoren"), header.operators);
    addField(details, QStringLiteral("Name"), header.name);
    addField(details, QStringLiteral("E-Mail"), header.email);
    addField(details, QStringLiteral("Punktzahl (CLAIMED-SCORE)"), header.claimedScore);
    addLongField(details, QStringLiteral("Soapbox"), header.soapbox);
    start();
}

bool CabrilloExportSheet::isComplete() const {
    return !tallyrig::text::trimmedOfBlanks(header.callsign).empty();
}

void CabrilloExportSheet::act() {
    store.exportCabrillo(header);
}

}  // namespace quillon
