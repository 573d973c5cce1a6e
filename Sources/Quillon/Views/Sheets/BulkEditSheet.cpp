// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Sheets/BulkEditSheet.h"

#include "Quillon/Catalogue/ADIFFieldCatalog.h"
#include "Quillon/Platform/Desktop/BusyCursor.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/BoundedField.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Tallyrig/Text/VisibleText.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include <utility>

namespace quillon {

using tallyrig::text::visibleText;

namespace {

/// As long a value as any log holds, yet laid out at once.
constexpr int longestValue = 10'000;

/// A log of more QSOs is not counted through at each keystroke.
constexpr std::size_t quicklyCounted = 20'000;
constexpr int pauseMs = 200;

QString label(BulkEditSheet::Mode mode) {
    switch (mode) {
        case BulkEditSheet::Mode::all:
            return QStringLiteral("Alle Werte setzen auf …");
        case BulkEditSheet::Mode::empty:
            return QStringLiteral("Nur leere Werte setzen auf …");
        case BulkEditSheet::Mode::replace:
            return QStringLiteral("Suchen & Ersetzen");
    }
    return {};
}

/// What is said about the values of a column.
struct ValueHelp {
    QString placeholder;
    QString hint;  ///< Empty for none.
};

ValueHelp valueHelp(std::string_view column) {
    if (column == "QSO_DATE") {
        return {QStringLiteral("Neuer Wert (JJJJMMTT, z. B. 20240115)"),
                QStringLiteral("ADIF-Datumsformat: 8 Ziffern.")};
    }
    if (column == "TIME_ON" || column == "TIME_OFF") {
        return {QStringLiteral("Neuer Wert (HHMM oder HHMMSS)"),
                QStringLiteral("ADIF-Zeitformat: 4 oder 6 Ziffern.")};
    }
    return {QStringLiteral("Neuer Wert (leer = Feld entfernen)"), QString()};
}

QLabel* addRow(QFormLayout& form, const QString& text, QWidget* control, const QString& meaning) {
    auto* label = new QLabel(text, form.parentWidget());
    nameBy(*label, *control);
    explain(*control, meaning);
    label->setWhatsThis(meaning);
    form.addRow(label, control);
    return label;
}

}  // namespace

BulkEditSheet::BulkEditSheet(LogStore& logStore, std::string column, QWidget* parent)
    : Sheet(QStringLiteral("Massen-Änderung"), QStringLiteral("Anwenden"), parent),
      store(logStore),
      columnName(std::move(column)) {
    auto* columnLine = new ElidedLabel(Qt::ElideRight, this);
    columnLine->setText(
        QStringLiteral("Spalte: ") + toQString(visibleText(cutToShow(ADIFFieldCatalog::label(columnName)))) +
        QStringLiteral("  (") + toQString(visibleText(cutToShow(columnName))) + QLatin1Char(')'));
    columnLine->setForegroundRole(QPalette::PlaceholderText);
    // The name may be as long as the log likes.
    columnLine->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    affected = new QLabel(this);
    removal = new QLabel(this);
    pause.setSingleShot(true);
    pause.setInterval(pauseMs);

    content()->addWidget(columnLine);
    content()->addWidget(makeForm());
    content()->addWidget(affected);
    content()->addWidget(removal);
    content()->addStretch(1);
    setMinimumWidth(32 * fontMetrics().height());

    connect(&pause, &QTimer::timeout, this, &BulkEditSheet::refresh);
    connect(&store, &LogStore::documentChanged, this, [this] {
        withoutValue.reset();
        refresh();
    });
    refresh();
    value->setFocus();
}

BulkEditSheet::Mode BulkEditSheet::mode() const {
    return static_cast<Mode>(modePicker->currentData().toInt());
}

QWidget* BulkEditSheet::makeForm() {
    auto* area = new QWidget(this);
    form = new QFormLayout(area);
    form->setContentsMargins(0, 0, 0, 0);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);

    modePicker = new QComboBox(area);
    for (const Mode offered : allModes) {
        modePicker->addItem(label(offered), static_cast<int>(offered));
    }
    addRow(*form, QStringLiteral("Aktion"), modePicker,
           QStringLiteral("Was mit den Werten der Spalte geschieht: alle ersetzen, nur leere füllen, oder "
                          "einen Text in ihnen durch einen anderen ersetzen. Es gilt für alle QSOs des Logs, "
                          "auch die, welche eine Suche verbirgt, und ist ein Schritt für „Rückgängig“."));
    const ValueHelp help = valueHelp(columnName);
    value = new BoundedLine(longestValue, area);
    value->editor().setPlaceholderText(help.placeholder);
    value->editor().setAccessibleName(QStringLiteral("Neuer Wert"));
    value->editor().setAccessibleDescription(help.hint);
    explain(*value, QStringLiteral(
                        "Der Wert, den die QSOs in dieser Spalte bekommen. Ein leerer entfernt das Feld."));
    form->addRow(QString(), value);
    valueHint = noteLabel(help.hint, area);
    form->addRow(QString(), valueHint);
    find = new BoundedLine(longestValue, area);
    addRow(*form, QStringLiteral("Suchen"), find,
           QStringLiteral("Der Text, der in den Werten ersetzt wird, überall, wo er vorkommt. Groß- und "
                          "Kleinschreibung zählen."));
    replacement = new BoundedLine(longestValue, area);
    addRow(*form, QStringLiteral("Ersetzen durch"), replacement,
           QStringLiteral("Was an seine Stelle tritt. Leer: der gesuchte Text fällt weg. "
                          "Ein Wert, von dem nichts bleibt, steht als leeres Feld im QSO."));

    connect(modePicker, &QComboBox::currentIndexChanged, this, &BulkEditSheet::refresh);
    connect(&value->editor(), &QLineEdit::textChanged, this, &BulkEditSheet::tellWhatEmptyValueDoes);
    connect(&find->editor(), &QLineEdit::textChanged, this, [this] {
        if (store.document().records().size() > quicklyCounted) {
            pause.start();
        }
        refresh();
    });
    return area;
}

void BulkEditSheet::refresh() {
    const bool replaces = mode() == Mode::replace;
    form->setRowVisible(value, !replaces);
    form->setRowVisible(valueHint, !replaces && !valueHint->text().isEmpty());
    form->setRowVisible(find, replaces);
    form->setRowVisible(replacement, replaces);
    setComplete(!replaces || !find->editor().text().isEmpty());
    switch (mode()) {
        case Mode::all:
            tellAffected(store.document().records().size());
            break;
        case Mode::empty:
            tellAffected(countWithoutValue());
            break;
        case Mode::replace:
            tellAffected(countFound());
            break;
    }
    tellWhatEmptyValueDoes();
}

std::optional<std::size_t> BulkEditSheet::countFound() {
    const QString text = find->editor().text();
    if (pause.isActive() && !text.isEmpty()) {
        return std::nullopt;
    }
    return store.document().countContaining(columnName, text.toStdString());
}

std::size_t BulkEditSheet::countWithoutValue() {
    if (!withoutValue) {
        withoutValue = store.document().countWithoutValue(columnName);
    }
    return *withoutValue;
}

void BulkEditSheet::tellAffected(std::optional<std::size_t> count) {
    affected->setText(QStringLiteral("Betrifft ") + (count ? numberText(*count) : QStringLiteral("…")) +
                      QStringLiteral(" von ") + numberText(store.document().records().size()) +
                      QStringLiteral(" QSOs."));
}

void BulkEditSheet::tellWhatEmptyValueDoes() {
    if (mode() == Mode::replace || !value->editor().text().isEmpty()) {
        removal->clear();
        return;
    }
    if (mode() == Mode::empty) {
        removal->setText(QStringLiteral("Ein leerer Wert ändert nichts."));
        return;
    }
    const std::size_t count = store.document().records().size() - countWithoutValue();
    removal->setText(QStringLiteral("Ein leerer Wert entfernt das Feld aus ") + numberText(count) +
                     (count == 1 ? QStringLiteral(" QSO.") : QStringLiteral(" QSOs.")));
}

void BulkEditSheet::act() {
    showBusyCursorUntilIdle();
    const std::string newValue = value->editor().text().toStdString();
    switch (mode()) {
        case Mode::all:
            store.setColumnValue(columnName, newValue, tallyrig::ColumnTarget::allRecords);
            break;
        case Mode::empty:
            store.setColumnValue(columnName, newValue, tallyrig::ColumnTarget::emptyOnly);
            break;
        case Mode::replace:
            store.replaceInColumn(columnName, find->editor().text().toStdString(),
                                  replacement->editor().text().toStdString());
            break;
    }
}

}  // namespace quillon
