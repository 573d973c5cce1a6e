// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Sidebar/GenericContestForm.h"

#include "Quillon/Stores/ContestStore.h"
#include "Quillon/Views/Controls/CalmComboBox.h"
#include "Quillon/Views/Controls/CalmSpinBox.h"
#include "Quillon/Views/Controls/SidebarSection.h"
#include "Quillon/Views/Controls/WrappingCheckBox.h"

#include <QLineEdit>
#include <QVBoxLayout>

#include <cstddef>
#include <utility>

namespace quillon {

namespace {

constexpr int mostPoints = 100;
constexpr int longestPrefix = 10;

/// What stands below a choice and belongs to it.
SidebarSection* partOf(SidebarSection& section) {
    auto* part = new SidebarSection(QString(), &section);
    section.add(part);
    return part;
}

}  // namespace

GenericContestForm::GenericContestForm(ContestStore& contestStore, QWidget* parent)
    : QWidget(parent), store(contestStore) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(18);
    column->addWidget(rules());
    column->addWidget(duplicates());
    column->addWidget(multiplier());
}

SidebarSection* GenericContestForm::rules() {
    auto* section = new SidebarSection(QStringLiteral("Regeln"), this);
    addText(*section, QStringLiteral("Name"), &GenericContest::contestName,
            QStringLiteral("Steht über der Wertung"),
            QStringLiteral("Wie der Contest heißt, in der Wertung und in Berichten. Leer: „Contest“."));

    auto* kind = new CalmComboBox(section);
    kind->addItems({QStringLiteral("Fest"), QStringLiteral("Distanz (km)"), QStringLiteral("Aus Feld")});
    section->addLabelled(
        QStringLiteral("Punkte"), kind,
        QStringLiteral("Was ein QSO zählt. Fest: für jedes gleich viel. Distanz: die Kilometer zwischen den "
                       "beiden Locatoren. Aus Feld: was im QSO selbst in einem Feld steht."));

    auto* fixed = partOf(*section);
    auto* points = new CalmSpinBox(fixed);
    points->setRange(0, mostPoints);
    points->setSuffix(QStringLiteral(" Punkte/QSO"));
    points->setAccessibleName(QStringLiteral("Punkte je QSO"));
    points->setValue(static_cast<int>(store.genericContest().fixedPoints));
    connect(points, &QSpinBox::valueChanged, this,
            [this](int value) { set(&GenericContest::fixedPoints, std::int64_t{value}); });
    fixed->add(points, QStringLiteral("Wie viele Punkte jedes gültige QSO zählt, das keine Dublette ist."));

    auto* distance = partOf(*section);
    addText(*distance, QStringLiteral("Eigenes Locator-Feld"), &GenericContest::myGridField,
            QStringLiteral("Das ADIF-Feld mit dem eigenen Locator. Hat ein QSO keinen, gilt der von „Mein "
                           "Standort“."),
            QStringLiteral("In welchem ADIF-Feld der eigene Locator des QSOs steht, üblicherweise "
                           "MY_GRIDSQUARE. Fehlt er dort, gilt der Locator unter „Mein Standort“."));
    addText(*distance, QStringLiteral("Gegen-Locator-Feld"), &GenericContest::theirGridField,
            QStringLiteral("Das ADIF-Feld mit dem Locator der Gegenstation"),
            QStringLiteral("In welchem ADIF-Feld der Locator der Gegenstation steht, üblicherweise "
                           "GRIDSQUARE. Ohne ihn lässt sich die Entfernung nicht rechnen."));

    auto* field = partOf(*section);
    addText(
        *field, QStringLiteral("Punkte-Feld"), &GenericContest::pointsField,
        QStringLiteral("Das ADIF-Feld, in dem die Punkte des QSOs stehen"),
        QStringLiteral("In welchem ADIF-Feld die Punkte jedes QSOs als Zahl stehen, zum Beispiel DISTANCE."));

    const auto showKind = [this, parts = std::array<QWidget*, 3>{fixed, distance, field}] {
        for (std::size_t index = 0; index < parts.size(); ++index) {
            parts[index]->setVisible(pointsKinds[index] == store.genericContest().pointsKind);
        }
    };
    kind->setCurrentIndex(static_cast<int>(store.genericContest().pointsKind));
    connect(kind, &QComboBox::currentIndexChanged, this, [this, showKind](int index) {
        set(&GenericContest::pointsKind, pointsKinds[static_cast<std::size_t>(index)]);
        showKind();
    });
    showKind();
    return section;
}

SidebarSection* GenericContestForm::duplicates() {
    auto* section = new SidebarSection(QStringLiteral("Dubletten & Pflichtfelder"), this);
    auto* mode = new CalmComboBox(section);
    mode->addItems(
        {QStringLiteral("Call + Band"), QStringLiteral("Call + Band + Modus"), QStringLiteral("Nur Call")});
    mode->setCurrentIndex(static_cast<int>(store.genericContest().dupeMode));
    connect(mode, &QComboBox::currentIndexChanged, this, [this](int index) {
        set(&GenericContest::dupeMode, dupeModes[static_cast<std::size_t>(index)]);
    });
    section->addLabelled(QStringLiteral("Dublette ="), mode,
                         QStringLiteral("Worin ein QSO mit einem früheren übereinstimmen muss, um nicht noch "
                                        "einmal zu zählen. Das erste zählt."));
    addText(*section, QStringLiteral("Pflichtfelder (Komma)"), &GenericContest::requiredFieldsText,
            QStringLiteral("Ohne diese ADIF-Felder ist ein QSO ungültig, z. B. CALL, GRIDSQUARE"),
            QStringLiteral("Die ADIF-Felder, ohne die ein QSO nicht zählt, durch Komma oder Leerzeichen "
                           "getrennt. Leer: nur CALL."));
    return section;
}

SidebarSection* GenericContestForm::multiplier() {
    auto* section = new SidebarSection(QStringLiteral("Multiplikator"), this);
    auto* counts = new WrappingCheckBox(QStringLiteral("Multiplikator zählen"), section);
    counts->setChecked(store.genericContest().multiplierEnabled);
    section->add(counts,
                 QStringLiteral("Ob die QSO-Punkte mit der Zahl verschiedener Werte eines Feldes malgenommen "
                                "werden. Aus, oder ohne Feld, ist das Ergebnis die Summe der QSO-Punkte."));

    auto* details = partOf(*section);
    addText(*details, QStringLiteral("Name"), &GenericContest::multiplierName,
            QStringLiteral("Wie der Multiplikator in der Wertung heißt"),
            QStringLiteral("Unter welchem Namen die Wertung den Multiplikator nennt, zum Beispiel "
                           "Großfelder. Leer: „Multiplikatoren“."));
    addText(*details, QStringLiteral("Feld"), &GenericContest::multiplierField,
            QStringLiteral("Das ADIF-Feld, dessen verschiedene Werte zählen"),
            QStringLiteral(
                "Aus welchem ADIF-Feld der Multiplikator kommt: jeder andere Wert darin zählt einmal. "
                "Beispiele: DXCC für Länder, GRIDSQUARE für Locatoren, STATE für Kantone oder Staaten."));
    auto* perBand = new WrappingCheckBox(QStringLiteral("je Band getrennt"), details);
    perBand->setChecked(store.genericContest().multiplierPerBand);
    connect(perBand, &QCheckBox::toggled, this,
            [this](bool on) { set(&GenericContest::multiplierPerBand, on); });
    details->add(
        perBand,
        QStringLiteral(
            "An: derselbe Wert zählt auf jedem Band wieder. Aus: er zählt im ganzen Contest einmal."));

    auto* prefix = new CalmSpinBox(details);
    prefix->setRange(0, longestPrefix);
    prefix->setSpecialValueText(QStringLiteral("ganzer Wert"));
    prefix->setPrefix(QStringLiteral("erste "));
    prefix->setSuffix(QStringLiteral(" Zeichen"));
    prefix->setAccessibleName(QStringLiteral("Wie viel des Wertes zählt"));
    prefix->setToolTip(QStringLiteral("Wie viele Zeichen des Feldes zählen; 0 für den ganzen Wert"));
    prefix->setValue(static_cast<int>(store.genericContest().multiplierPrefix));
    connect(prefix, &QSpinBox::valueChanged, this,
            [this](int value) { set(&GenericContest::multiplierPrefix, std::int64_t{value}); });
    details->add(prefix, QStringLiteral("Wie viele Zeichen vom Anfang des Wertes zählen: bei GRIDSQUARE "
                                        "geben die ersten 4 das Großfeld. 0 nimmt den ganzen Wert."));

    connect(counts, &QCheckBox::toggled, this, [this, details](bool on) {
        set(&GenericContest::multiplierEnabled, on);
        details->setVisible(on);
    });
    details->setVisible(store.genericContest().multiplierEnabled);
    return section;
}

void GenericContestForm::addText(SidebarSection& section, const QString& label,
                                 std::string GenericContest::*member, const QString& toolTip,
                                 const QString& meaning) {
    QLineEdit& field = section.addText(label, store.genericContest().*member, toolTip, meaning);
    connect(&field, &QLineEdit::textEdited, this,
            [this, member](const QString& text) { set(member, text.toStdString()); });
}

template <typename Value>
void GenericContestForm::set(Value GenericContest::*member, Value value) {
    GenericContest form = store.genericContest();
    form.*member = std::move(value);
    store.setGenericContest(std::move(form));
}

}  // namespace quillon
