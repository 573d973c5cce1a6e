#pragma once

#include "Quillon/Views/Compare/ComparisonModel.h"

#include <QWidget>

namespace quillon {

class CompareBody;
class TableScroll;

/// The strip between the two tables of a comparison, which tells of each row what it is. A press on a sign
/// makes the row the current one.
class CentreBar : public QWidget {
    Q_OBJECT

  public:
    /// All outlive the bar. It stands beside the header and the rows of `body`, which it takes the number of
    /// its rows and its place from.
    CentreBar(ComparisonModel& comparisonModel, TableScroll& tableScroll, CompareBody& besideBody);

    /// The place of the row's sign in the coordinates of this widget.
    QRectF signArea(std::size_t row) const;

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

  private:
    std::optional<std::size_t> rowAt(QPointF point) const;
    void fitWidth();

    ComparisonModel& model;
    TableScroll& scroll;
    CompareBody& body;
};

}  // namespace quillon
