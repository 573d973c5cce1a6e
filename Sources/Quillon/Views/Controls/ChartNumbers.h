// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Views/Controls/ChartData.h"

#include <QTableView>

#include <memory>

namespace quillon {

/// The numbers behind a chart as a table: all entries in their order, also those without a bar. Copying puts
/// the chosen lines into the clipboard, in the form of `ChartData::numbers`.
class ChartNumbers : public QTableView {
    Q_OBJECT

  public:
    explicit ChartNumbers(QWidget* parent = nullptr);

    void setData(std::shared_ptr<const ChartData> chartData);

  protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void fitHeight();
    void copyChosen() const;

    std::shared_ptr<const ChartData> shown;
};

}  // namespace quillon
