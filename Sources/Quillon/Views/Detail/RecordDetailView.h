#pragma once

#include "Tallyrig/Log/ADIFRecord.h"

#include <QWidget>

#include <cstddef>
#include <optional>
#include <vector>

class QScrollArea;
class QStackedLayout;
class QVBoxLayout;

namespace quillon {

class EmptyState;
class FieldRow;
class LogStore;

/// The selected QSO field by field, to be edited. With none or several selected it says so.
///
/// Records have a few dozen fields, and rarely some have thousands: rows are made a screenful or two ahead of
/// where the user has scrolled to.
class RecordDetailView : public QWidget {
    Q_OBJECT

  public:
    /// `logStore` outlives the view.
    explicit RecordDetailView(LogStore& logStore, QWidget* parent = nullptr);

    /// Puts the cursor into the value of the record's last field, if there is one.
    void focusLastField();

  private:
    void refresh();
    void showRecord(const tallyrig::ADIFRecord& record);
    void showNoRecord();
    /// Shows the fields up to `count`, at most as many as there are.
    void showRows(std::size_t count);
    void showMoreRowsNearEnd();
    void addRow();
    void write(std::size_t index, const QString& text);
    void remove(std::size_t index);

    LogStore& store;
    std::optional<tallyrig::ADIFRecord> shown;
    QStackedLayout* pages;
    EmptyState* empty;
    QScrollArea* list;
    QVBoxLayout* column;
    std::vector<FieldRow*> rows;  ///< As many as were ever needed at once; the first `shownRows` are shown.
    std::size_t shownRows = 0;
};

}  // namespace quillon
