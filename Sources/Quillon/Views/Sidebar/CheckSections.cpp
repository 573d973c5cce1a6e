// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Sidebar/CheckSections.h"

#include "Quillon/Catalogue/DuplicateCriterion.h"
#include "Quillon/Platform/Settings.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Stores/ValidationSettings.h"
#include "Quillon/Views/Controls/BoundedField.h"
#include "Quillon/Views/Controls/CalmComboBox.h"
#include "Quillon/Views/Controls/Icons.h"
#include "Quillon/Views/Controls/SidebarSection.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Quillon/Views/Controls/WrappingCheckBox.h"
#include "Quillon/Views/Sidebar/FieldAdder.h"
#include "Tallyrig/Validation/ADIFSpec317.h"

#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace quillon {

namespace {

constexpr int longestVersion = 100;

}  // namespace

CheckSections::CheckSections(LogStore& logStore, Settings& userSettings, QWidget* parent)
    : QWidget(parent), store(logStore), settings(userSettings) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(18);
    column->addWidget(checks());
    column->addWidget(saving());
    auto* adder = new FieldAdder(store, this);
    connect(adder, &FieldAdder::fieldAdded, this, &CheckSections::fieldAdded);
    column->addWidget(adder);
    column->addWidget(exporting());
}

SidebarSection* CheckSections::checks() {
    auto* section = new SidebarSection(QString(), this);
    addSwitch(
        *section, QStringLiteral("Pflichtfelder"), setting::checkRequired,
        QStringLiteral("Meldet als Fehler jedes QSO, dem Rufzeichen, Datum, Zeit, Band oder Betriebsart "
                       "fehlt (CALL, QSO_DATE, TIME_ON, BAND, MODE). Gilt ab der nächsten Prüfung."));
    addSwitch(
        *section, QStringLiteral("Formate (Datum, Band, Locator …)"), setting::checkFormat,
        QStringLiteral("Prüft jeden Wert gegen ADIF 3.1.7. Ungültige Daten und Zeiten sind Fehler; Band, "
                       "Betriebsart, Locator, Frequenz, Rufzeichen und Werte, die nicht in der Liste ihres "
                       "Feldes stehen, geben Warnungen, ebenso eine Frequenz außerhalb des Bandes."));
    addSwitch(*section, QStringLiteral("Unbekannte Felder melden"), setting::checkUnknownFields,
              QStringLiteral("Warnt bei Feldnamen, die ADIF 3.1.7 nicht kennt; oft sind es Tippfehler. Wirkt "
                             "nur, wenn auch „Formate“ an ist."));
    section->addNote(QStringLiteral(
        "Warnt bei Feldern, die nicht in der ADIF-Spezifikation stehen (APP_- und USERDEF-Felder "
        "bleiben erlaubt). Teil der Formatprüfung."));
    addSwitch(*section, QStringLiteral("Dubletten"), setting::checkDuplicates,
              QStringLiteral("Warnt bei jedem QSO, das mit einem anderen in den Feldern übereinstimmt, die "
                             "unter „Dublette =“ gewählt sind, und nennt dessen Zeile."));

    auto* criterion = new CalmComboBox(section);
    for (const DuplicateCriterion offered : duplicateCriteria) {
        criterion->addItem(toQString(label(offered)), toQString(storedValue(offered)));
    }
    criterion->setCurrentIndex(
        criterion->findData(toQString(storedValue(currentDuplicateCriterion(settings)))));
    connect(criterion, &QComboBox::activated, this,
            [this, criterion] { settings.setValue(setting::duplicateCriterion, criterion->currentData()); });
    section->addLabelled(
        QStringLiteral("Dublette ="), criterion,
        QStringLiteral("Worin zwei QSOs übereinstimmen müssen, damit sie beim Prüfen als Dublette gelten. "
                       "Die Wertung eines Contests richtet sich nicht danach, sondern nach ihren Regeln."));

    auto* run = new QPushButton(checkIcon(), QStringLiteral("Jetzt prüfen"), section);
    connect(run, &QPushButton::clicked, this, &CheckSections::checkRequested);
    const auto offerCheck = [this, run] { run->setEnabled(!store.document().records().empty()); };
    connect(&store, &LogStore::documentChanged, run, offerCheck);
    offerCheck();
    section->add(run);
    return section;
}

SidebarSection* CheckSections::saving() {
    auto* section = new SidebarSection(QStringLiteral("Speichern"), this);
    addSwitch(
        *section, QStringLiteral("ADIF-Header schreiben"), setting::writeHeaderOnSave,
        QStringLiteral("Ob vor den QSOs ein Kopf in der Datei steht, mit Kommentar, Programm, ADIF-Version "
                       "und Zeit. Aus: eine ADIF-Datei beginnt mit dem ersten QSO, und ihr Kopf geht beim "
                       "Speichern verloren; ADX behält den, den das Log mitbrachte."));
    auto* version = new BoundedLine(longestVersion, section);
    version->editor().setAcceptDrops(false);
    const QString stored = settings.string(setting::adifVersion);
    const std::string_view current = tallyrig::ADIFSpec::version;
    version->setText(stored.isNull() ? std::string(current) : stored.toStdString());
    // What is written while the field is empty.
    version->editor().setPlaceholderText(toQString(current));
    connect(&version->editor(), &QLineEdit::textEdited, this,
            [this](const QString& text) { settings.setValue(setting::adifVersion, text); });
    section->addLabelled(
        QStringLiteral("ADIF-Version"), version,
        QStringLiteral("Was im Kopf als ADIF_VER steht; leer gilt 3.1.7. Geprüft und geschrieben wird immer "
                       "gleich, und der Export für Outdoor-Programme nennt immer 3.1.7."));
    return section;
}

SidebarSection* CheckSections::exporting() {
    auto* section = new SidebarSection(QStringLiteral("Export"), this);
    const auto add = [this, section](const QString& title, auto&& run) {
        auto* button = new QPushButton(icon(QStringLiteral("document-export")), title, section);
        connect(button, &QPushButton::clicked, this, run);
        section->add(button);
    };
    add(QStringLiteral("ADIF (.adi) …"), [this] { store.saveAsADI(); });
    add(QStringLiteral("ADX (.adx) …"), [this] { store.saveAsADX(); });
    add(QStringLiteral("Cabrillo (.cbr) …"), [this] { store.setShowCabrilloExport(true); });
    add(QStringLiteral("EDI (.edi) …"), [this] { store.setShowEDIExport(true); });
    return section;
}

void CheckSections::addSwitch(SidebarSection& section, const QString& text, const QString& key,
                              const QString& meaning) {
    auto* box = new WrappingCheckBox(text, &section);
    box->setChecked(settings.boolean(key, true));
    connect(box, &QCheckBox::toggled, this, [this, key](bool on) { settings.setValue(key, on); });
    section.add(box, meaning);
}

}  // namespace quillon
