// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Views/Sheets/Sheet.h"

#include <QTimer>

#include <array>
#include <cstddef>
#include <optional>
#include <string>

class QComboBox;
class QFormLayout;
class QLabel;

namespace quillon {

class BoundedLine;
class LogStore;

/// Changes one column in all QSOs at once, and says beforehand how many that concerns.
class BulkEditSheet : public Sheet {
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

  protected:
    void act() override;

  private:
    QWidget* makeForm();
    void refresh();
    /// The number of QSOs in which the text to find stands, absent until the user pauses typing.
    std::optional<std::size_t> countFound();
    std::size_t countWithoutValue();
    void tellAffected(std::optional<std::size_t> count);
    void tellWhatEmptyValueDoes();

    LogStore& store;
    std::string columnName;
    QFormLayout* form = nullptr;
    QComboBox* modePicker = nullptr;
    BoundedLine* value = nullptr;
    QLabel* valueHint = nullptr;
    BoundedLine* find = nullptr;
    BoundedLine* replacement = nullptr;
    QLabel* affected = nullptr;
    QLabel* removal = nullptr;
    QTimer pause{this};                       ///< Runs while the user types.
    std::optional<std::size_t> withoutValue;  ///< Counted at most once for a log.
};

}  // namespace quillon
