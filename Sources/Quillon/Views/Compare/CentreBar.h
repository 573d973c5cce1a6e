// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Views/Compare/ComparisonModel.h"

#include <QWidget>

namespace quillon {

class CompareBody;
class TableScroll;

/// The strip between the two tables of a comparison, which tells of each row what it is.
class CentreBar : public QWidget {
    Q_OBJECT

  public:
    /// All outlive the bar. It stands beside the header and the rows of `besideBody`.
    CentreBar(const ComparisonModel& comparisonModel, TableScroll& tableScroll,
              const CompareBody& besideBody);

    /// The place of the row's sign in the coordinates of this widget.
    QRectF signArea(std::size_t row) const;

  signals:
    /// The mouse was pressed on the sign of this row; absent above and below all signs.
    void pressed(std::optional<std::size_t> row);

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

  private:
    std::optional<std::size_t> rowAt(QPointF point) const;
    void fitWidth();

    const ComparisonModel& model;
    TableScroll& scroll;
    const CompareBody& body;
};

}  // namespace quillon
