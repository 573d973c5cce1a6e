// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Views/Compare/ComparisonModel.h"

#include <QWidget>

class QLabel;

namespace quillon {

class CompareStore;
class LogStore;

/// The bar above a comparison: what each side is called, whether it can be edited and whether it has edits
/// that are not saved.
class CompareTitle : public QWidget {
    Q_OBJECT

  public:
    /// All outlive the bar.
    CompareTitle(const LogStore& logStore, const CompareStore& compareStore,
                 const ComparisonModel& comparisonModel, QWidget* parent = nullptr);

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    struct SideLabels {
        QLabel* name;
        QLabel* editable;
        QLabel* changed;
    };

    SideLabels addSide();
    void refresh();
    void shareRoom();

    const LogStore& log;
    const CompareStore& store;
    const ComparisonModel& model;
    SideLabels left{};
    SideLabels right{};
};

}  // namespace quillon
