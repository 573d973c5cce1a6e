// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QPushButton;

namespace quillon {

class BoundedLine;
class FieldPicker;
class LogStore;

/// The section of the sidebar that adds a field to the single selected QSO: one of the ADIF fields, or one of
/// the user's own.
class FieldAdder : public QWidget {
    Q_OBJECT

  public:
    /// `logStore` outlives the section.
    explicit FieldAdder(LogStore& logStore, QWidget* parent = nullptr);

  signals:
    /// A field was added; it is the last of the record.
    void fieldAdded();

  private:
    void refresh();
    void addOwnField();
    void add(const QString& name);

    LogStore& store;
    QWidget* hint;
    QWidget* form;
    FieldPicker* picker;
    BoundedLine* newFieldName;
    QPushButton* addButton;
};

}  // namespace quillon
