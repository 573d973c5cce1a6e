// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <cstddef>
#include <optional>

namespace quillon {

/// What the table asks the user. The real ones are modal dialogs; tests answer by themselves.
class TableQuestions {
  public:
    TableQuestions() = default;
    TableQuestions(const TableQuestions&) = delete;
    TableQuestions& operator=(const TableQuestions&) = delete;
    virtual ~TableQuestions() = default;

    /// Whether the official ADIF field `from`, which `recordCount` records hold, may be renamed to `to`.
    virtual bool confirmRename(const QString& from, const QString& to, std::size_t recordCount) = 0;
    /// Whether `count` QSOs may be deleted, `hiddenCount` of which the search hides.
    virtual bool confirmDeletion(std::size_t count, std::size_t hiddenCount) = 0;
    /// The name of the field for a new column, as typed from `proposed` on; absent if the user cancels.
    virtual std::optional<QString> newColumnName(const QString& proposed) = 0;
    /// The number of a row, from 1 to `count`, for which `current` is proposed; absent if the user cancels.
    virtual std::optional<std::size_t> rowNumber(std::size_t count, std::size_t current) = 0;
};

/// The dialogs, modal over the active window.
class TableDialogs : public TableQuestions {
  public:
    bool confirmRename(const QString& from, const QString& to, std::size_t recordCount) override;
    bool confirmDeletion(std::size_t count, std::size_t hiddenCount) override;
    std::optional<QString> newColumnName(const QString& proposed) override;
    std::optional<std::size_t> rowNumber(std::size_t count, std::size_t current) override;
};

}  // namespace quillon
