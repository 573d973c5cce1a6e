#pragma once

#include "Tallyrig/Log/ADIFDocument.h"

#include <QWidget>

#include <string>
#include <vector>

class QScrollArea;
class QToolButton;

namespace quillon {

class ElidedLabel;
class LogStore;

/// What the header of the log says about the program that wrote it and its ADIF version; empty if it says
/// neither.
QString fileInfoSummary(const tallyrig::ADIFDocument& document);

/// A bar that tells in one line where the log comes from and, opened, shows its whole header.
class FileInfoBar : public QWidget {
    Q_OBJECT

  public:
    /// The store outlives the bar.
    explicit FileInfoBar(const LogStore& logStore, QWidget* parent = nullptr);

    bool isExpanded() const { return expanded; }
    void setExpanded(bool isOpen);

  private:
    void refresh();
    void fillDetails();

    const LogStore& store;
    QToolButton* disclosure;
    ElidedLabel* summary;
    QScrollArea* details;
    bool expanded = false;
    std::string shownComment;  ///< What the details were made from.
    std::vector<tallyrig::ADIFField> shownFields;
};

}  // namespace quillon
