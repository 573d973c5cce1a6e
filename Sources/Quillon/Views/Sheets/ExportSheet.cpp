#include "Quillon/Views/Sheets/ExportSheet.h"

#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/CalmComboBox.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/Strings.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTextDocument>
#include <QVBoxLayout>

#include <limits>

namespace quillon {

namespace {

constexpr QSize sheetSize(560, 620);
constexpr int smallestWidthPx = 440;
constexpr int longFieldLines = 3;

/// Labels begin at the same place in all sections, so that the form reads as one.
constexpr int labelWidthPx = 190;

/// What was typed, character by character: `toPlainText` makes a blank of a no-break space.
QString typedText(const QTextDocument& document) {
    return document.toRawText()
        .replace(QChar::ParagraphSeparator, QLatin1Char('\n'))
        .replace(QChar::LineSeparator, QLatin1Char('\n'));
}

}  // namespace

ExportSheet::ExportSheet(LogStore& logStore, const QString& title, QWidget* parent)
    : QDialog(parent),
      store(logStore),
      form(new QWidget(this)),
      sections(new QVBoxLayout(form)),
      area(new QScrollArea(this)) {
    setWindowTitle(title);
    resize(sheetSize);
    setMinimumWidth(smallestWidthPx);

    auto* heading = new QLabel(title, this);
    QFont headingFont = heading->font();
    headingFont.setBold(true);
    headingFont.setPointSizeF(headingFont.pointSizeF() * 1.2);
    heading->setFont(headingFont);

    sections->setContentsMargins(0, 0, 12, 0);
    sections->setSpacing(16);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(form);

    auto* count =
        new QLabel(QString::number(store.document().records().size()) + QStringLiteral(" QSOs"), this);
    count->setForegroundRole(QPalette::PlaceholderText);
    auto* cancelButton = new QPushButton(QStringLiteral("Abbrechen"), this);
    cancelButton->setAutoDefault(false);
    exportButton = new QPushButton(QStringLiteral("Exportieren …"), this);
    exportButton->setDefault(true);
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(count);
    bottom->addStretch(1);
    bottom->addWidget(cancelButton);
    bottom->addWidget(exportButton);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(18, 18, 18, 18);
    layout->setSpacing(12);
    layout->addWidget(heading);
    layout->addWidget(area, 1);
    layout->addLayout(bottom);

    connect(cancelButton, &QPushButton::clicked, this, &QDialog::reject);
    connect(exportButton, &QPushButton::clicked, this, [this] {
        exportLog();
        accept();
    });
}

QFormLayout* ExportSheet::addSection(const QString& heading) {
    auto* column = new QVBoxLayout;
    column->setSpacing(8);
    if (!heading.isEmpty()) {
        column->addWidget(headingLabel(heading, form));
    }
    auto* section = new QFormLayout;
    section->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    section->setLabelAlignment(Qt::AlignLeft);
    column->addLayout(section);
    sections->addLayout(column);
    return section;
}

void ExportSheet::addControl(QFormLayout* section, const QString& label, QWidget* control) {
    auto* text = new QLabel(label, form);
    text->setMinimumWidth(labelWidthPx);
    text->setBuddy(control);
    control->setAccessibleName(label);
    section->addRow(text, control);
}

QLineEdit* ExportSheet::addField(QFormLayout* section, const QString& label, std::string& text) {
    auto* field = new QLineEdit(form);
    field->setMaxLength(std::numeric_limits<int>::max());
    field->setText(toQString(text));
    connect(field, &QLineEdit::textChanged, this, [this, &text](const QString& typed) {
        text = typed.toStdString();
        refresh();
    });
    addControl(section, label, field);
    if (firstField == nullptr) {
        firstField = field;
    }
    return field;
}

QPlainTextEdit* ExportSheet::addLongField(QFormLayout* section, const QString& label, std::string& text) {
    auto* field = new QPlainTextEdit(toQString(text), form);
    field->setTabChangesFocus(true);
    const int margins = 2 * (field->frameWidth() + static_cast<int>(field->document()->documentMargin()));
    field->setFixedHeight(longFieldLines * field->fontMetrics().lineSpacing() + margins);
    connect(field, &QPlainTextEdit::textChanged, this,
            [field, &text] { text = typedText(*field->document()).toStdString(); });
    addControl(section, label, field);
    return field;
}

QComboBox* ExportSheet::addPicker(QFormLayout* section, const QString& label) {
    auto* picker = new CalmComboBox(form);
    addControl(section, label, picker);
    return picker;
}

void ExportSheet::addChoice(QFormLayout* section, const QString& label, const QStringList& choices,
                            std::string& text) {
    QComboBox* const picker = addPicker(section, label);
    picker->addItems(choices);
    picker->setCurrentIndex(picker->findText(toQString(text)));
    connect(picker, &QComboBox::activated, this, [this, picker, &text] {
        text = picker->currentText().toStdString();
        refresh();
    });
}

void ExportSheet::start() {
    sections->addStretch(1);
    // The form does not scroll sideways.
    area->setMinimumWidth(form->minimumSizeHint().width() + area->verticalScrollBar()->sizeHint().width());
    if (firstField != nullptr) {
        firstField->setFocus();
    }
    refresh();
}

void ExportSheet::refresh() {
    exportButton->setEnabled(isComplete());
}

}  // namespace quillon
