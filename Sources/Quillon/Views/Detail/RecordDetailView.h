// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFRecord.h"

#include <QWidget>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

class QLabel;
class QScrollArea;
class QStackedLayout;
class QToolButton;
class QVBoxLayout;

namespace quillon {

class EmptyState;
class FieldRow;
class LogStore;

/// The selected QSO field by field, to be edited. With none or several selected it says so.
///
/// Records have a few dozen fields, and rarely some have thousands: those are shown a page at a time.
class RecordDetailView : public QWidget {
    Q_OBJECT

  public:
    /// `logStore` outlives the view.
    explicit RecordDetailView(LogStore& logStore, QWidget* parent = nullptr);

    /// Puts the cursor into the value of the record's last field, if there is one.
    void focusLastField();
    /// Brings the record's field `name` at `position` into view and lets it stand out until another QSO is
    /// shown. A field that the record does not have (absent) is offered in an empty row, and is added as soon
    /// as something is typed there.
    void showField(const std::string& name, std::optional<std::size_t> position);

  private:
    QWidget* makePager();
    void refresh();
    void showRecord(const tallyrig::ADIFRecord& record);
    void showNoRecord();
    /// Shows the fields from `first` on, as many as a page holds.
    void showPage(std::size_t first);
    /// Shows the page with the field at `position`, below the number of rows, and gives its row.
    FieldRow& bringIntoView(std::size_t position);
    void addRow();
    void write(std::size_t row, const QString& text);
    void remove(std::size_t row);
    std::size_t fieldCount() const { return shown ? shown->fields().size() : 0; }
    /// Those of the fields and the one that is offered.
    std::size_t rowCount() const { return fieldCount() + (offered ? 1 : 0); }
    void dropMark();

    LogStore& store;
    std::optional<tallyrig::ADIFRecord> shown;
    QStackedLayout* pages;
    EmptyState* empty;
    QScrollArea* list;
    QVBoxLayout* column;
    QWidget* pager = nullptr;
    QToolButton* previousPage = nullptr;
    QToolButton* nextPage = nullptr;
    QLabel* pageLabel = nullptr;
    std::vector<FieldRow*> rows;  ///< As many as were ever needed at once.
    std::size_t firstField = 0;   ///< The position of the field in the first row.
    std::optional<std::size_t> marked;
    std::string markedName;  ///< Of the field at `marked`, which other fields may come to stand at.
    std::optional<std::string> offered;  ///< The field that is missing; its row is the last.
};

}  // namespace quillon
