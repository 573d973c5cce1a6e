// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Sheets/ExportSheet.h"

#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/BoundedField.h"
#include "Quillon/Views/Controls/CalmComboBox.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/Strings.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTextDocument>
#include <QVBoxLayout>

#include <algorithm>

namespace quillon {

namespace {

constexpr QSize ordinarySize(560, 620);
constexpr int longFieldLines = 3;

/// No line of a header that anybody reads is longer. In UTF-16 units, or bytes of what the log suggests.
constexpr int longestLine = 1'000;
constexpr int longestText = 20'000;

/// What was typed, character by character: `toPlainText` makes a blank of a no-break space.
QString typedText(const QTextDocument& document) {
    return document.toRawText()
        .replace(QChar::ParagraphSeparator, QLatin1Char('\n'))
        .replace(QChar::LineSeparator, QLatin1Char('\n'));
}

}  // namespace

ExportSheet::ExportSheet(LogStore& logStore, const QString& title, QWidget* parent)
    : Sheet(title, QStringLiteral("Exportieren …"), parent),
      store(logStore),
      form(new QWidget(this)),
      sections(new QVBoxLayout(form)),
      area(new QScrollArea(this)) {
    sections->setContentsMargins(0, 0, 12, 0);
    sections->setSpacing(16);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(form);
    content()->addWidget(area, 1);
    setRemark(numberText(store.document().records().size()) + QStringLiteral(" QSOs"));
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

void ExportSheet::addControl(QFormLayout* section, const QString& label, QWidget* control,
                             const QString& meaning) {
    auto* text = new QLabel(label, form);
    nameBy(*text, *control);
    explain(*control, meaning);
    text->setWhatsThis(meaning);
    section->addRow(text, control);
    labels.append(text);
}

BoundedLine* ExportSheet::addField(QFormLayout* section, const QString& label, std::string& text,
                                   const QString& meaning) {
    auto* field = new BoundedLine(longestLine, form);
    field->setText(text);
    // What is not shown is not exported either.
    text = cutToShow(text, longestLine);
    connect(&field->editor(), &QLineEdit::textChanged, this, [this, &text](const QString& typed) {
        text = typed.toStdString();
        refresh();
    });
    addControl(section, label, field, meaning);
    if (firstField == nullptr) {
        firstField = field;
    }
    return field;
}

void ExportSheet::addLongField(QFormLayout* section, const QString& label, std::string& text,
                               const QString& meaning) {
    auto* field = new BoundedText(longestText, longFieldLines, form);
    const QPlainTextEdit& editor = field->editor();
    connect(&editor, &QPlainTextEdit::textChanged, this,
            [&editor, &text] { text = typedText(*editor.document()).toStdString(); });
    addControl(section, label, field, meaning);
}

QComboBox* ExportSheet::addPicker(QFormLayout* section, const QString& label, const QString& meaning) {
    auto* picker = new CalmComboBox(form);
    addControl(section, label, picker, meaning);
    return picker;
}

void ExportSheet::addChoice(QFormLayout* section, const QString& label, const QStringList& choices,
                            std::string& text, const QString& meaning) {
    QComboBox* const picker = addPicker(section, label, meaning);
    picker->addItems(choices);
    picker->setCurrentIndex(picker->findText(toQString(text)));
    connect(picker, &QComboBox::activated, this, [this, picker, &text] {
        text = picker->currentText().toStdString();
        refresh();
    });
}

void ExportSheet::start() {
    sections->addStretch(1);
    // The fields begin at the same place in all sections, so that the form reads as one.
    int widest = 0;
    for (const QLabel* label : labels) {
        widest = std::max(widest, label->sizeHint().width());
    }
    for (QLabel* label : labels) {
        label->setMinimumWidth(widest);
    }
    const int letter = fontMetrics().height();
    // The frame of the window wants some of a small screen.
    constexpr QSize frame(16, 48);
    resize(ordinarySize.expandedTo({32 * letter, 36 * letter}).boundedTo(screen()->availableSize() - frame));
    // The form does not scroll sideways.
    area->setMinimumWidth(std::max(
        24 * letter, form->minimumSizeHint().width() + area->verticalScrollBar()->sizeHint().width()));
    if (firstField != nullptr) {
        firstField->setFocus();
    }
    refresh();
}

void ExportSheet::refresh() {
    setComplete(isComplete());
}

}  // namespace quillon
