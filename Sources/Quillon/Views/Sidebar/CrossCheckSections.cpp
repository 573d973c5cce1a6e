// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Sidebar/CrossCheckSections.h"

#include "Quillon/Stores/CrossCheckStore.h"
#include "Quillon/Views/Controls/CalmComboBox.h"
#include "Quillon/Views/Controls/CalmSpinBox.h"
#include "Quillon/Views/Controls/Icons.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/SidebarSection.h"
#include "Quillon/Views/Controls/WrappingCheckBox.h"
#include "Quillon/Views/Sidebar/ContestPicker.h"
#include "Quillon/Views/Sidebar/CrossCheckLogs.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace quillon {

namespace {

constexpr int longestTolerance = 30;
constexpr int mostPenalty = 3;

}  // namespace

CrossCheckSections::CrossCheckSections(CrossCheckStore& crossStore, ContestStore& contestStore,
                                       QWidget* parent)
    : QWidget(parent), store(crossStore), contest(contestStore) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(18);
    column->addWidget(logs());
    column->addWidget(comparing());
    column->addWidget(scoring());
    column->addWidget(reports());
}

SidebarSection* CrossCheckSections::logs() {
    auto* section = new SidebarSection(QStringLiteral("Logs"), this);
    addSwitch(*section, QStringLiteral("Aktuelles Log einbeziehen"), store.includeCurrentLog(),
              &CrossCheckStore::setIncludeCurrentLog,
              QStringLiteral("Ob das Log, das im Fenster geöffnet ist, am Cross-Check teilnimmt. Es muss "
                             "dann nicht noch einmal als Datei hinzugefügt werden."));
    QLineEdit& owner = section->addText(
        QStringLiteral("Inhaber aktuelles Log"), store.currentOwnerOverride(),
        QStringLiteral("Das Rufzeichen der Station, deren Log geöffnet ist"),
        QStringLiteral("Unter welchem Rufzeichen das geöffnete Log teilnimmt. Leer: der häufigste Wert von "
                       "STATION_CALLSIGN, und wo das Feld fehlt, von OPERATOR. An diesem Rufzeichen erkennen "
                       "die anderen Logs ihre Gegenstation."));
    owner.setPlaceholderText(QStringLiteral("Rufzeichen"));
    connect(&owner, &QLineEdit::textEdited, this,
            [this](const QString& text) { store.setCurrentOwnerOverride(text.toStdString()); });
    section->addNote(QStringLiteral("Leer = aus STATION_CALLSIGN/OPERATOR ermittelt"));

    auto* add =
        new QPushButton(icon(QStringLiteral("list-add")), QStringLiteral("Logs hinzufügen …"), section);
    connect(add, &QPushButton::clicked, this, &CrossCheckSections::addLogsRequested);
    section->add(add);
    QLabel* message = section->addNote(QString());
    const auto showMessage = [this, message] {
        setWrappedText(*message, store.loadMessage().value_or(QString()));
        message->setVisible(store.loadMessage().has_value());
    };
    connect(&store, &CrossCheckStore::loadMessageChanged, message, showMessage);
    showMessage();
    section->add(
        new CrossCheckLogs(store, section),
        QStringLiteral(
            "Die Logs, die gegeneinander geprüft werden, mit dem Rufzeichen ihres Inhabers. Rot steht "
            "„unbekannt“, wo keines gefunden wurde: ein solches Log wird geprüft, aber kein anderes gegen "
            "es. Ein Klick ins Feld oder F2 berichtigt den Inhaber; leer gilt wieder der ermittelte."));
    return section;
}

SidebarSection* CrossCheckSections::comparing() {
    auto* section = new SidebarSection(QStringLiteral("Abgleich"), this);
    auto* tolerance = new CalmSpinBox(section);
    tolerance->setRange(1, longestTolerance);
    tolerance->setSuffix(QStringLiteral(" min"));
    tolerance->setValue(store.toleranceMinutes());
    connect(tolerance, &QSpinBox::valueChanged, &store, &CrossCheckStore::setToleranceMinutes);
    section->addLabelled(
        QStringLiteral("Zeittoleranz"), tolerance,
        QStringLiteral("Um wie viele Minuten die Zeiten beider Logs höchstens auseinander liegen dürfen, "
                       "damit ein QSO bestätigt ist. Bis 30 Minuten gilt es noch als gefunden, mit dem "
                       "Befund „Zeit abweichend“; das kostet keine Punkte."));
    addSwitch(
        *section, QStringLiteral("Modus vergleichen"), store.compareMode(), &CrossCheckStore::setCompareMode,
        QStringLiteral("Ob auch die Betriebsart übereinstimmen muss. SSB, AM, FM und digitale Sprache gelten "
                       "dabei als eine; CW, RTTY und jede digitale Betriebsart stehen für sich."));
    section->addNote(QStringLiteral("CW, Phonie und Digital müssen übereinstimmen"));
    addSwitch(*section, QStringLiteral("Austausch prüfen"), store.checkExchange(),
              &CrossCheckStore::setCheckExchange,
              QStringLiteral("Ob der empfangene Austausch mit dem verglichen wird, den die Gegenstation "
                             "gesendet hat: Nummer, Text und Locator. Führende Nullen und ein Rapport davor "
                             "zählen nicht. Stimmt er nicht, ist das QSO „Busted Exchange“."));
    section->addNote(QStringLiteral(
        "Empfangener Austausch (SRX/SRX_STRING, Locator) gegen den gesendeten der Gegenstation"));
    addSwitch(*section, QStringLiteral("RST einbeziehen"), store.checkRST(), &CrossCheckStore::setCheckRST,
              QStringLiteral("Ob auch die Rapporte RST_RCVD und RST_SENT übereinstimmen müssen. Wirkt nur, "
                             "wenn der Austausch geprüft wird."));
    section->addNote(QStringLiteral(
        "/P- und Präfix-Zusätze zählen als Treffer (mit Hinweis). Busted Call: Abstand ≤ 2 Zeichen."));
    return section;
}

SidebarSection* CrossCheckSections::scoring() {
    auto* section = new SidebarSection(QStringLiteral("Wertung"), this);
    auto* counts = new WrappingCheckBox(QStringLiteral("Punkte berechnen"), section);
    counts->setChecked(store.scoringEnabled());
    section->add(counts,
                 QStringLiteral("Ob jedes Log nach den Regeln des Contests gewertet wird, wie gemeldet und "
                                "wie geprüft. Nach dem geprüften Ergebnis richtet sich dann die Rangliste."));
    auto* details = new SidebarSection(QString(), section);
    section->add(details);
    details->addLabelled(
        QStringLiteral("Contest"), new ContestPicker(contest, details),
        QStringLiteral("Nach welchen Regeln die Logs gewertet werden; derselbe wie bei „Eigenes Log“. Wer "
                       "tippt, findet den ersten, in dem das Getippte steht."));
    addSwitch(*details, QStringLiteral("Busted Exchange streichen"), store.removeBustedExchange(),
              &CrossCheckStore::setRemoveBustedExchange,
              QStringLiteral("Ob ein QSO mit falsch aufgenommenem Austausch aus der Wertung fällt. Aus: es "
                             "zählt voll, und auch die Strafe für Busted trifft es nicht."));
    addPenalty(*details, QStringLiteral("Strafe je NIL"), store.nilPenaltyFactor(),
               &CrossCheckStore::setNilPenaltyFactor,
               QStringLiteral("Was ein QSO, das nicht im Log der Gegenstation steht, außer seinen Punkten "
                              "kostet: das Ein- bis Dreifache der Punkte, die es gebracht hätte."));
    addPenalty(*details, QStringLiteral("Strafe je Busted"), store.bustedPenaltyFactor(),
               &CrossCheckStore::setBustedPenaltyFactor,
               QStringLiteral(
                   "Was ein falsch aufgenommenes Rufzeichen außer den Punkten kostet: das Ein- bis Dreifache "
                   "von ihnen. Gilt auch für den Austausch, wenn „Busted Exchange streichen“ an ist."));
    details->addNote(QStringLiteral(
        "NIL und Busted Call werden immer gestrichen. Standort je Log: DXCC/Kontinent aus dem Rufzeichen, "
        "Locator aus MY_GRIDSQUARE, Zonen aus «Mein Standort» (Eigenes Log)."));
    connect(counts, &QCheckBox::toggled, this, [this, details](bool on) {
        store.setScoringEnabled(on);
        details->setVisible(on);
    });
    details->setVisible(store.scoringEnabled());
    return section;
}

SidebarSection* CrossCheckSections::reports() {
    auto* section = new SidebarSection(QStringLiteral("Berichte"), this);
    QLineEdit& evaluator =
        section->addText(QStringLiteral("Auswerter"), store.evaluator(), QString(),
                         QStringLiteral("Wer ausgewertet hat, mit Rufzeichen oder Namen. Steht im Kopf jedes "
                                        "Berichts und im Gruß an seinem Ende; leer fällt beides weg."));
    evaluator.setPlaceholderText(QStringLiteral("z. B. HB9XYZ"));
    connect(&evaluator, &QLineEdit::textEdited, this,
            [this](const QString& text) { store.setEvaluator(text.toStdString()); });
    section->addNote(QStringLiteral("Rufzeichen für den Gruss am Ende jedes Berichts (leer = ohne)"));
    reportsButton = new QPushButton(icon(QStringLiteral("document-export")),
                                    QStringLiteral("Berichte exportieren …"), section);
    connect(reportsButton, &QPushButton::clicked, this, &CrossCheckSections::exportRequested);
    section->add(reportsButton);
    section->addNote(QStringLiteral(
        "Je Station ein Prüfbericht (.txt + .md) und die Rangliste (CSV) in einem neuen Unterordner."));
    return section;
}

void CrossCheckSections::offerReports(bool offered) {
    reportsButton->setEnabled(offered);
    reportsButton->setToolTip(
        offered ? QString() : QStringLiteral("Erst wenn zwei Logs da sind und das Ergebnis fertig ist"));
}

void CrossCheckSections::addSwitch(SidebarSection& section, const QString& text, bool isOn,
                                   void (CrossCheckStore::*set)(bool), const QString& meaning) {
    auto* box = new WrappingCheckBox(text, &section);
    box->setChecked(isOn);
    connect(box, &QCheckBox::toggled, &store, set);
    section.add(box, meaning);
}

void CrossCheckSections::addPenalty(SidebarSection& section, const QString& label, int factor,
                                    void (CrossCheckStore::*set)(int), const QString& meaning) {
    auto* picker = new CalmComboBox(&section);
    picker->addItem(QStringLiteral("keine"));
    for (int times = 1; times <= mostPenalty; ++times) {
        picker->addItem(QString::number(times) + QStringLiteral("× QSO-Punkte"));
    }
    picker->setCurrentIndex(factor);
    connect(picker, &QComboBox::currentIndexChanged, &store, set);
    section.addLabelled(label, picker, meaning);
}

}  // namespace quillon
