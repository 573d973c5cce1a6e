#pragma once

#include <QDialog>

#include <array>
#include <string>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace quillon {

class LogStore;

/// Changes one column in all QSOs at once.
class BulkEditSheet : public QDialog {
    Q_OBJECT

  public:
    /// What is done to the column.
    enum class Mode {
        all,      ///< Every QSO takes the value.
        empty,    ///< Those without a value take it.
        replace,  ///< In the values, one text is replaced by another.
    };
    static constexpr std::array allModes = {Mode::all, Mode::empty, Mode::replace};

    /// `logStore` outlives the sheet; `column` is an ADIF field name in upper case.
    BulkEditSheet(LogStore& logStore, std::string column, QWidget* parent = nullptr);

    Mode mode() const;

  private:
    QWidget* makeForm();
    void refresh();
    void apply();

    LogStore& store;
    std::string columnName;
    QComboBox* modePicker = nullptr;
    QLineEdit* value = nullptr;
    QLineEdit* find = nullptr;
    QLineEdit* replacement = nullptr;
    QLabel* affected = nullptr;
    QPushButton* applyButton = nullptr;
};

}  // namespace quillon
