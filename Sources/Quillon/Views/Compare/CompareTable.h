// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Views/Compare/ComparisonModel.h"

#include <QList>
#include <QWidget>

class QAction;

namespace quillon {

class CentreBar;
class CompareBody;
class CompareHeader;
class TableScroll;

/// The two tables of a comparison side by side, with the bar of signs between them. They go up and down
/// together and each to the sides by itself.
class CompareTable : public QWidget {
    Q_OBJECT

  public:
    /// The model outlives the table.
    explicit CompareTable(ComparisonModel& comparisonModel, QWidget* parent = nullptr);
    ~CompareTable() override;

    CompareBody& body(ComparisonModel::Side side) const;
    CompareHeader& header(ComparisonModel::Side side) const;
    TableScroll& scroll(ComparisonModel::Side side) const;
    CentreBar& centreBar() const { return *bar; }

    /// What the context menu of the rows offers besides what is done to a cell.
    void addMenuActions(const QList<QAction*>& further);
    /// Gives the keyboard to the side where it was last.
    void enter();
    /// Gives the keyboard to a side that has a QSO in the current row.
    void enterSideWithRecord();
    /// Writes what stands in an open editor and closes it.
    void commitEditing();
    /// Closes it without writing.
    void dismissEditors();

  signals:
    /// What the user wanted does not work here; `text` says why.
    void noticed(const QString& text);

  protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    struct Half {
        TableScroll* scroll;
        CompareHeader* header;
        CompareBody* body;
    };

    Half makeHalf(ComparisonModel::Side side);
    const Half& half(ComparisonModel::Side side) const;
    void addCellActions(CompareBody& rows);
    void addWidthActions(CompareBody& rows);
    void fitContent();

    ComparisonModel& model;
    Half left;
    Half right;
    CentreBar* bar;
};

}  // namespace quillon
