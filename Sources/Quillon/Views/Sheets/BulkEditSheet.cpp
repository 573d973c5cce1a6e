#include "Quillon/Views/Sheets/BulkEditSheet.h"

#include "Quillon/Catalogue/ADIFFieldCatalog.h"
#include "Quillon/Platform/Desktop/BusyCursor.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Tallyrig/Log/RecordSearch.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <limits>
#include <utility>

namespace quillon {

namespace {

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

/// The number of records whose value in `column`, empty where they have none, is such as `matches` says.
template <typename Condition>
std::size_t countRecords(const tallyrig::ADIFDocument& document, std::string_view column, Condition matches) {
    std::size_t count = 0;
    for (const tallyrig::ADIFRecord& record : document.records()) {
        const tallyrig::RecordStorage& stored = record.stored();
        const auto index = tallyrig::indexOfField(stored, column);
        count += matches(index ? stored.field(*index).value : std::string_view()) ? 1 : 0;
    }
    return count;
}

}  // namespace

BulkEditSheet::BulkEditSheet(LogStore& logStore, std::string column, QWidget* parent)
    : QDialog(parent), store(logStore), columnName(std::move(column)) {
    setWindowTitle(QStringLiteral("Massen-Änderung"));
    setMinimumWidth(460);

    auto* title = new QLabel(windowTitle(), this);
    QFont titleFont = title->font();
    titleFont.setBold(true);
    titleFont.setPointSizeF(titleFont.pointSizeF() * 1.2);
    title->setFont(titleFont);
    auto* columnLine =
        new QLabel(QStringLiteral("Spalte: ") + toQString(cutToShow(ADIFFieldCatalog::label(columnName))) +
                       QStringLiteral("  (") + toQString(cutToShow(columnName)) + QLatin1Char(')'),
                   this);
    columnLine->setTextFormat(Qt::PlainText);
    columnLine->setForegroundRole(QPalette::PlaceholderText);
    affected = new QLabel(this);
    auto* buttons = new QDialogButtonBox(this);
    applyButton = buttons->addButton(QStringLiteral("Anwenden"), QDialogButtonBox::AcceptRole);
    buttons->addButton(QStringLiteral("Abbrechen"), QDialogButtonBox::RejectRole)->setAutoDefault(false);
    applyButton->setDefault(true);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(18, 18, 18, 18);
    layout->setSpacing(10);
    layout->addWidget(title);
    layout->addWidget(columnLine);
    layout->addWidget(makeForm());
    layout->addWidget(affected);
    layout->addStretch(1);
    layout->addWidget(buttons);

    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(buttons, &QDialogButtonBox::accepted, this, &BulkEditSheet::apply);
    connect(&store, &LogStore::documentChanged, this, &BulkEditSheet::refresh);
    refresh();
    // Otherwise it would be the default button, and Return behind a value typed into it would empty the
    // column.
    value->setFocus();
}

BulkEditSheet::Mode BulkEditSheet::mode() const {
    return static_cast<Mode>(modePicker->currentData().toInt());
}

QWidget* BulkEditSheet::makeForm() {
    auto* form = new QWidget(this);
    modePicker = new QComboBox(form);
    for (const Mode offered : allModes) {
        modePicker->addItem(label(offered), static_cast<int>(offered));
    }
    const ValueHelp help = valueHelp(columnName);
    value = new QLineEdit(form);
    value->setPlaceholderText(help.placeholder);
    value->setAccessibleName(QStringLiteral("Neuer Wert"));
    auto* hint = noteLabel(help.hint, form);
    find = new QLineEdit(form);
    replacement = new QLineEdit(form);
    for (QLineEdit* field : {value, find, replacement}) {
        field->setMaxLength(std::numeric_limits<int>::max());
    }

    auto* layout = new QFormLayout(form);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    layout->addRow(QStringLiteral("Aktion"), modePicker);
    auto* valueWithHint = new QWidget(form);
    auto* valueLayout = new QVBoxLayout(valueWithHint);
    valueLayout->setContentsMargins(0, 0, 0, 0);
    valueLayout->setSpacing(4);
    valueLayout->addWidget(value);
    valueLayout->addWidget(hint);
    hint->setVisible(!help.hint.isEmpty());
    layout->addRow(QString(), valueWithHint);
    layout->addRow(QStringLiteral("Suchen"), find);
    layout->addRow(QStringLiteral("Ersetzen durch"), replacement);

    connect(modePicker, &QComboBox::currentIndexChanged, this, &BulkEditSheet::refresh);
    connect(find, &QLineEdit::textChanged, this, &BulkEditSheet::refresh);
    return form;
}

void BulkEditSheet::refresh() {
    auto* form = static_cast<QFormLayout*>(modePicker->parentWidget()->layout());
    const bool replaces = mode() == Mode::replace;
    form->setRowVisible(value->parentWidget(), !replaces);
    form->setRowVisible(find, replaces);
    form->setRowVisible(replacement, replaces);
    applyButton->setEnabled(!replaces || !find->text().isEmpty());

    const tallyrig::ADIFDocument& document = store.document();
    const std::size_t total = document.records().size();
    std::size_t count = 0;
    switch (mode()) {
        case Mode::all:
            count = total;
            break;
        case Mode::empty:
            count = countRecords(document, columnName, [](std::string_view text) { return text.empty(); });
            break;
        case Mode::replace:
            if (const std::string part = find->text().toStdString(); !part.empty()) {
                count = countRecords(document, columnName, [&](std::string_view text) {
                    return tallyrig::text::contains(text, part);
                });
            }
            break;
    }
    affected->setText(QStringLiteral("Betrifft ") + QString::number(count) + QStringLiteral(" von ") +
                      QString::number(total) + QStringLiteral(" QSOs."));
}

void BulkEditSheet::apply() {
    showBusyCursorUntilIdle();
    switch (mode()) {
        case Mode::all:
            store.setColumnValue(columnName, value->text().toStdString(), tallyrig::ColumnTarget::allRecords);
            break;
        case Mode::empty:
            store.setColumnValue(columnName, value->text().toStdString(), tallyrig::ColumnTarget::emptyOnly);
            break;
        case Mode::replace:
            store.replaceInColumn(columnName, find->text().toStdString(), replacement->text().toStdString());
            break;
    }
    accept();
}

}  // namespace quillon
