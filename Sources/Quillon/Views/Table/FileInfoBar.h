// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFDocument.h"

#include <QWidget>

class QLabel;

namespace quillon {

class CopyableList;
class DisclosureButton;
class ElidedLabel;
class FileInfoModel;
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

    bool isExpanded() const;
    void setExpanded(bool isOpen);

  private:
    void refresh();
    /// So high that the whole header is in view, up to a limit.
    void fitDetails();

    const LogStore& store;
    DisclosureButton* disclosure;
    ElidedLabel* summary;
    FileInfoModel* model;
    CopyableList* details;
    QLabel* nothing;  ///< What stands in the place of `details` without a header.
};

}  // namespace quillon
