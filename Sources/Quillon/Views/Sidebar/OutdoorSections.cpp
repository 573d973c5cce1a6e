// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Sidebar/OutdoorSections.h"

#include "Quillon/Platform/Desktop/BusyCursor.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/ChoiceRow.h"
#include "Quillon/Views/Controls/Icons.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/SidebarSection.h"
#include "Quillon/Views/Controls/Strings.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <cstddef>

namespace quillon {

namespace {

using tallyrig::OutdoorProgram;
using tallyrig::SOTARole;

/// A row with one choice for each of `values`, in their order; `set` takes the one that the user chooses.
template <typename Values, typename Value, typename Set>
ChoiceRow* rowOf(const Values& values, Value current, SidebarSection* section, const QString& meaning,
                 Set set) {
    QStringList labels;
    for (const Value value : values) {
        labels.append(toQString(rawValue(value)));
    }
    auto* const row = new ChoiceRow(labels, static_cast<int>(current), section);
    QObject::connect(row, &ChoiceRow::chosen, section,
                     [&values, set](int index) { set(values[static_cast<std::size_t>(index)]); });
    explain(*row, meaning);
    section->addUnderHeading(row);
    return row;
}

QString checkNoteFor(OutdoorProgram program) {
    if (program == OutdoorProgram::sota) {
        return QStringLiteral(
            "V2-CSV-Format der SOTA-Datenbank. Aktivierer: je QSO ein MY_SOTA_REF (eigener Gipfel, "
            "z. B. HB/BE-001). Jäger: QSOs mit SOTA_REF (Gegen-Gipfel) – die übrigen werden ausgelassen.");
    }
    return QStringLiteral(
               "Prüft je QSO auf ein Rufzeichen (STATION_CALLSIGN oder OPERATOR). Eine Referenz in "
               "MY_SIG_INFO (z. B. %1) wird, falls vorhanden, auf Format geprüft – sie darf auch fehlen "
               "(z. B. POTA-Park im Dateinamen). Fehlt etwas, erscheint es als Befund zum Editieren.")
        .arg(toQString(referenceExample(program)));
}

QString exportNoteFor(OutdoorProgram program, SOTARole role) {
    if (program != OutdoorProgram::sota) {
        return QStringLiteral("Eine Datei pro Referenz (<Call>@<Ref> Datum.adi).");
    }
    return role == SOTARole::activator ? QStringLiteral("Datei <Call>@<Gipfel> Datum.csv.")
                                       : QStringLiteral("Datei <Call> chaser Datum.csv.");
}

}  // namespace

OutdoorSections::OutdoorSections(LogStore& logStore, QWidget* parent) : QWidget(parent), store(logStore) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(18);
    // Made from top to bottom, which is also the order for the Tab key.
    column->addWidget(programs());
    roleSection = roles();
    column->addWidget(roleSection);
    column->addWidget(checking());
    column->addWidget(exporting());
    connect(&store, &LogStore::outdoorProgramChanged, this, &OutdoorSections::showProgram);
    connect(&store, &LogStore::sotaRoleChanged, this, &OutdoorSections::showProgram);
    showProgram();
}

SidebarSection* OutdoorSections::programs() {
    auto* section = new SidebarSection(QStringLiteral("Outdoor-Programm"), this);
    ChoiceRow* const row = rowOf(
        tallyrig::outdoorPrograms, store.outdoorProgram(), section,
        QStringLiteral("Für welches Programm geprüft und exportiert wird: Parks (POTA), Gipfel (SOTA), "
                       "Bunker (BOTA), Naturschutzgebiete (WWFF), Seen (LLOTA), Burgen (WCA) oder Berge "
                       "(GMA). Danach richten sich die Form der Referenzen und der Wert von MY_SIG."),
        [this](OutdoorProgram program) { store.setOutdoorProgram(program); });
    connect(&store, &LogStore::outdoorProgramChanged, row,
            [this, row] { row->setCurrent(static_cast<int>(store.outdoorProgram())); });
    return section;
}

SidebarSection* OutdoorSections::roles() {
    auto* section = new SidebarSection(QStringLiteral("Rolle"), this);
    ChoiceRow* const row = rowOf(
        tallyrig::sotaRoles, store.sotaRole(), section,
        QStringLiteral(
            "Activator ist, wer vom Gipfel gefunkt hat: jedes QSO braucht ihn in MY_SOTA_REF. Chaser ist, "
            "wer Stationen auf Gipfeln gearbeitet hat: es zählen die QSOs mit deren Gipfel in SOTA_REF."),
        [this](SOTARole role) { store.setSotaRole(role); });
    connect(&store, &LogStore::sotaRoleChanged, row,
            [this, row] { row->setCurrent(static_cast<int>(store.sotaRole())); });
    return section;
}

SidebarSection* OutdoorSections::checking() {
    auto* section = new SidebarSection(QString(), this);
    checkNote = section->addNote(QString());
    auto* run = new QPushButton(checkIcon(), QStringLiteral("Konformität prüfen"), section);
    connect(run, &QPushButton::clicked, this, [this] {
        showBusyCursorUntilIdle();
        store.runOutdoorCheck();
    });
    const auto offerCheck = [this, run] { run->setEnabled(!store.document().records().empty()); };
    connect(&store, &LogStore::documentChanged, run, offerCheck);
    offerCheck();
    section->add(run);
    return section;
}

SidebarSection* OutdoorSections::exporting() {
    auto* section = new SidebarSection(QStringLiteral("Export"), this);
    exportButton = new QPushButton(icon(QStringLiteral("document-export")), QString(), section);
    connect(exportButton, &QPushButton::clicked, this, [this] {
        // The log is sorted by reference before the panel asks for a folder.
        showBusyCursorUntilIdle();
        store.exportOutdoor();
    });
    section->add(exportButton);
    exportNote = section->addNote(QString());
    return section;
}

void OutdoorSections::showProgram() {
    const OutdoorProgram program = store.outdoorProgram();
    roleSection->setVisible(program == OutdoorProgram::sota);
    checkNote->setText(checkNoteFor(program));
    exportButton->setText(program == OutdoorProgram::sota
                              ? QStringLiteral("SOTA-CSV exportieren …")
                              : toQString(rawValue(program)) + QStringLiteral("-ADIF exportieren …"));
    exportNote->setText(exportNoteFor(program, store.sotaRole()));
}

}  // namespace quillon
