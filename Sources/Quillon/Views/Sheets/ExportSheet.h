// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Views/Sheets/Sheet.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <string>

class QComboBox;
class QFormLayout;
class QLabel;
class QScrollArea;
class QVBoxLayout;

namespace quillon {

class BoundedLine;
class LogStore;

/// A sheet that collects the header of a file and then exports the log: a form in sections, the number of
/// QSOs and the two buttons. Each control writes straight into the text it was made for; what a log suggests
/// is cut to what its field holds.
class ExportSheet : public Sheet {
    Q_OBJECT

  protected:
    /// `logStore` outlives the sheet.
    ExportSheet(LogStore& logStore, const QString& title, QWidget* parent);

    /// A group of labelled controls under a heading, which may be empty.
    QFormLayout* addSection(const QString& heading);
    // `meaning` answers the user who asks what a field is for (Shift+F1).
    BoundedLine* addField(QFormLayout* section, const QString& label, std::string& text,
                          const QString& meaning);
    /// With a field of several lines, empty at first.
    void addLongField(QFormLayout* section, const QString& label, std::string& text, const QString& meaning);
    /// A picker to be filled.
    QComboBox* addPicker(QFormLayout* section, const QString& label, const QString& meaning);
    /// A picker over `choices`. A text that is none of them shows as nothing chosen.
    void addChoice(QFormLayout* section, const QString& label, const QStringList& choices, std::string& text,
                   const QString& meaning);
    /// To be called when the form stands: from then on the button follows `isComplete`, and the first field
    /// has the focus.
    void start();

    /// Whether the header has what the file cannot do without.
    virtual bool isComplete() const = 0;

    LogStore& store;

  private:
    void addControl(QFormLayout* section, const QString& label, QWidget* control, const QString& meaning);
    void refresh();

    QWidget* form;
    QVBoxLayout* sections;
    QScrollArea* area;
    BoundedLine* firstField = nullptr;
    QList<QLabel*> labels;
};

}  // namespace quillon
