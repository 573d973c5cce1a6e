#include "Quillon/Views/ExportSheet.h"

#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Labels.h"
#include "Quillon/Views/Strings.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace quillon {

namespace {

constexpr QSize sheetSize(560, 620);
constexpr int longFieldLines = 3;

/// Labels begin at the same place in all sections, so that the form reads as one.
constexpr int labelWidthPx = 190;

}  // namespace

ExportSheet::ExportSheet(LogStore& logStore, const QString& title, QWidget* parent)
    : QDialog(parent), store(logStore), form(new QWidget), sections(new QVBoxLayout(form)) {
    setWindowTitle(title);
    resize(sheetSize);

    auto* heading = new QLabel(title, this);
    QFont headingFont = heading->font();
    headingFont.setBold(true);
    headingFont.setPointSizeF(headingFont.pointSizeF() * 1.2);
    heading->setFont(headingFont);

    sections->setContentsMargins(0, 0, 12, 0);
    sections->setSpacing(16);
    auto* area = new QScrollArea(this);
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
    auto* field = new QLineEdit(toQString(text), form);
    connect(field, &QLineEdit::textChanged, this, [this, &text](const QString& typed) {
        text = typed.toStdString();
        refresh();
    });
    addControl(section, label, field);
    return field;
}

QPlainTextEdit* ExportSheet::addLongField(QFormLayout* section, const QString& label, std::string& text) {
    auto* field = new QPlainTextEdit(toQString(text), form);
    field->setTabChangesFocus(true);
    const int margins = 2 * (field->frameWidth() + static_cast<int>(field->document()->documentMargin()));
    field->setFixedHeight(longFieldLines * field->fontMetrics().lineSpacing() + margins);
    connect(field, &QPlainTextEdit::textChanged, this,
            [field, &text] { text = field->toPlainText().toStdString(); });
    addControl(section, label, field);
    return field;
}

QComboBox* ExportSheet::addChoice(QFormLayout* section, const QString& label, const QStringList& choices,
                                  std::string& text) {
    auto* picker = new QComboBox(form);
    for (const QString& choice : choices) {
        picker->addItem(choice.isEmpty() ? QStringLiteral("–") : choice, choice);
    }
    picker->setCurrentIndex(picker->findData(toQString(text)));
    connect(picker, &QComboBox::activated, this, [this, picker, &text] {
        text = picker->currentData().toString().toStdString();
        refresh();
    });
    addControl(section, label, picker);
    return picker;
}

void ExportSheet::start() {
    sections->addStretch(1);
    refresh();
}

void ExportSheet::refresh() {
    exportButton->setEnabled(isComplete());
}

}  // namespace quillon
