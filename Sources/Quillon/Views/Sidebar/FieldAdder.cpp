// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Sidebar/FieldAdder.h"

#include "Quillon/Catalogue/ADIFFieldCatalog.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/BoundedField.h"
#include "Quillon/Views/Controls/Icons.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/SidebarSection.h"
#include "Quillon/Views/Sidebar/FieldPicker.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace quillon {

namespace {

constexpr int longestName = 200;

}  // namespace

FieldAdder::FieldAdder(LogStore& logStore, QWidget* parent)
    : QWidget(parent),
      store(logStore),
      hint(noteLabel(QStringLiteral("Einzelnes QSO auswählen, um Felder hinzuzufügen."), this)),
      form(new QWidget(this)),
      picker(new FieldPicker(store, form)),
      newFieldName(new BoundedLine(longestName, form)),
      addButton(new QPushButton(icon(QStringLiteral("list-add")), QString(), form)) {
    newFieldName->editor().setPlaceholderText(QStringLiteral("z. B. SOTA_REF"));
    newFieldName->editor().setAcceptDrops(false);
    addButton->setToolTip(QStringLiteral("Feld hinzufügen"));
    addButton->setAccessibleName(QStringLiteral("Feld hinzufügen"));

    auto* own = new QWidget(form);
    auto* ownRow = new QHBoxLayout(own);
    ownRow->setContentsMargins(0, 0, 0, 0);
    ownRow->setSpacing(6);
    ownRow->addWidget(newFieldName, 1);
    ownRow->addWidget(addButton, 0, Qt::AlignTop);
    own->setFocusProxy(&newFieldName->editor());
    own->setFocusPolicy(newFieldName->focusPolicy());

    auto* formSection = new SidebarSection(QString(), form);
    formSection->addLabelled(QStringLiteral("Standardfeld"), picker,
                             QStringLiteral("Ein Feld aus ADIF, das dem ausgewählten QSO noch fehlt. Wer "
                                            "tippt, findet es nach Namen oder deutscher Bezeichnung."));
    formSection->addLabelled(
        QStringLiteral("Eigenes Feld"), own,
        QStringLiteral("Der Name eines Feldes, das nicht in der Liste steht, in Großbuchstaben gespeichert. "
                       "Eingabe fügt es dem ausgewählten QSO hinzu."));
    auto* formLayout = new QVBoxLayout(form);
    formLayout->setContentsMargins(0, 0, 0, 0);
    formLayout->addWidget(formSection);

    auto* section = new SidebarSection(QStringLiteral("Feld hinzufügen"), this);
    section->add(hint);
    section->add(form);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(section);

    connect(picker, &FieldPicker::picked, this, &FieldAdder::add);
    connect(&newFieldName->editor(), &QLineEdit::returnPressed, this, &FieldAdder::addOwnField);
    connect(&newFieldName->editor(), &QLineEdit::textChanged, this,
            [this](const QString& text) { addButton->setEnabled(!text.trimmed().isEmpty()); });
    connect(addButton, &QPushButton::clicked, this, &FieldAdder::addOwnField);
    connect(&store, &LogStore::selectionChanged, this, &FieldAdder::refresh);
    connect(&store, &LogStore::documentChanged, this, &FieldAdder::refresh);
    addButton->setEnabled(false);
    refresh();
}

void FieldAdder::refresh() {
    const bool single = store.selectedRecord() != nullptr;
    hint->setVisible(!single);
    form->setVisible(single);
}

void FieldAdder::addOwnField() {
    const std::string typed = newFieldName->editor().text().trimmed().toStdString();
    if (typed.empty()) {
        return;
    }
    const std::string name = LogStore::cleanedFieldName(typed);
    // A name that ADIF does not allow could not be read back from the saved file.
    if (!LogStore::isValidFieldName(name)) {
        store.setErrorMessage(LogStore::invalidFieldNameMessage(typed));
        return;
    }
    newFieldName->editor().clear();
    add(QString::fromStdString(name));
}

void FieldAdder::add(const QString& name) {
    if (const tallyrig::ADIFRecord* record = store.selectedRecord()) {
        store.addField(record->id(), name.toStdString());
        emit fieldAdded();
    }
}

}  // namespace quillon
