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
    void addRow();
    void write(std::size_t index, const QString& text);
    void remove(std::size_t index);

    LogStore& store;
    std::optional<tallyrig::ADIFRecord> shown;
    QStackedLayout* pages;
    EmptyState* empty;
    QScrollArea* list;
    QVBoxLayout* column;
    std::vector<FieldRow*>
        rows;  ///< As many as were ever needed at once; those beyond the record's are hidden.
};

}  // namespace quillon
