// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Sidebar/CompareSections.h"

#include "Quillon/Platform/Desktop/BusyCursor.h"
#include "Quillon/Stores/CompareStore.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/SidebarSection.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Tallyrig/Text/VisibleText.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace quillon {

CompareSections::CompareSections(CompareStore& compareStore, QWidget* parent)
    : QWidget(parent), store(compareStore) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(18);
    column->addWidget(files());
    auto* key = new SidebarSection(QStringLiteral("Schlüssel (Paarung)"), this);
    QStringList fields;
    for (const std::string& field : store.keyFields()) {
        fields.append(toQString(field));
    }
    auto* names = new QLabel(key);
    names->setTextFormat(Qt::PlainText);
    setWrappedText(*names, fields.join(QStringLiteral(" + ")));
    key->addUnderHeading(names);
    explain(
        *key,
        QStringLiteral(
            "Zwei QSOs gehören zusammen, wenn sie in all diesen Feldern übereinstimmen; Groß- und "
            "Kleinschreibung zählen nicht. In allen anderen Feldern dürfen sie voneinander abweichen. "
            "Mehrere gleiche werden in ihrer Reihenfolge gepaart. Andere Schlüssel kennt tallyrig compare."));
    column->addWidget(key);

    for (const auto signal : {&CompareStore::leftFileChanged, &CompareStore::leftFileNameChanged,
                              &CompareStore::rightNameChanged, &CompareStore::rightURLChanged}) {
        connect(&store, signal, this, &CompareSections::refresh);
    }
    refresh();
}

SidebarSection* CompareSections::files() {
    auto* section = new SidebarSection(QStringLiteral("Dateien"), this);
    left = addSide(*section, Side::left);
    currentLog = new QPushButton(QStringLiteral("↺ Aktuelles Log links"), section);
    currentLog->setAccessibleName(QStringLiteral("Aktuelles Log links"));
    connect(currentLog, &QPushButton::clicked, &store, [this] { store.setLeftFile(std::nullopt); });
    section->add(currentLog);
    right = addSide(*section, Side::right);
    section->addNote(QStringLiteral(
        "Beide Seiten sind editierbar. Änderungen am aktuellen Log gehen ins Log (über die Symbolleiste "
        "speichern); geladene Dateien sicherst du hier mit „Speichern“."));
    return section;
}

CompareSections::SideControls CompareSections::addSide(SidebarSection& section, Side side) {
    const QString title = side == Side::left ? QStringLiteral("Links") : QStringLiteral("Rechts");
    auto* area = new QWidget(&section);
    auto* column = new QVBoxLayout(area);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    auto* nameRow = new QHBoxLayout;
    nameRow->addWidget(new QLabel(title + QLatin1Char(':'), area));
    auto* name = new ElidedLabel(Qt::ElideMiddle, area);
    name->setTextFormat(Qt::PlainText);
    nameRow->addWidget(name, 1);
    column->addLayout(nameRow);
    auto* buttons = new QHBoxLayout;
    auto* load = new QPushButton(QStringLiteral("Laden …"), area);
    load->setAccessibleName(title + QStringLiteral(" laden"));
    auto* save = new QPushButton(QStringLiteral("Speichern"), area);
    save->setAccessibleName(title + QStringLiteral(" speichern"));
    buttons->addWidget(load, 1);
    buttons->addWidget(save, 1);
    column->addLayout(buttons);
    section.add(area);
    connect(load, &QPushButton::clicked, &store,
            [this, side] { side == Side::left ? store.loadLeftFile() : store.loadRight(); });
    connect(save, &QPushButton::clicked, &store, [this, side] {
        showBusyCursorUntilIdle();
        side == Side::left ? store.saveLeftFile() : store.saveRight();
    });
    return {name, save};
}

void CompareSections::refresh() {
    const auto show = [](const SideControls& controls, const QString& name, bool isFile) {
        const QString shown = toQString(tallyrig::text::visibleText(name.toStdString()));
        controls.name->setText(shown);
        controls.name->setToolTip(plainToolTip(shown));
        controls.save->setEnabled(isFile);
    };
    const ComparedFile* const file = store.leftFile();
    show(left, file != nullptr ? file->name : QStringLiteral("Aktuelles Log"), file != nullptr);
    show(right, store.rightName(), store.hasRightFile());
    currentLog->setEnabled(file != nullptr);
}

}  // namespace quillon
