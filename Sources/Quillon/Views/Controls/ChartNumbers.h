// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Views/Controls/ChartData.h"

#include <QTableView>

#include <memory>

namespace quillon {

class NumbersOrder;

/// The numbers behind a chart as a table: all entries in their order, also those without a bar. A click on a
/// heading, or Return in its column, sorts by it, once more the other way round, and the third time back to
/// that order. Copying puts the chosen lines into the clipboard, in the form of `ChartData::numbers`.
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
    void sortBy(int column);
    void fitHeight();
    void copyChosen() const;

    std::shared_ptr<const ChartData> shown;
    NumbersOrder* order;
};

}  // namespace quillon
