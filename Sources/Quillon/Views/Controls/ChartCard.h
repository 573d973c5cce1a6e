// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Views/Controls/Card.h"
#include "Quillon/Views/Controls/ChartData.h"

#include <memory>

class QLabel;
class QScrollBar;

namespace quillon {

class Chart;
class ChartNumbers;
class ChartPainter;
class DisclosureButton;

/// A chart under its title, with a bar to scroll it where it is too narrow for all of its bars, and the table
/// of its numbers, which a button opens below it. A menu copies chart and numbers.
class ChartCard : public Card {
    Q_OBJECT

  public:
    /// The painter outlives the card. Without one there is the table alone.
    explicit ChartCard(ChartPainter* painter, QWidget* parent = nullptr);

    void setData(ChartData data);

    /// Null without a painter.
    Chart* chart() const { return bars; }
    /// What takes the keyboard first; null if nothing does.
    QWidget* firstControl() const;
    void showNumbers(bool shown);
    void copyNumbers() const;

  protected:
    void contextMenuEvent(QContextMenuEvent* event) override;

  private:
    void buildChart(ChartPainter& painter);
    void fitScrollBar();
    void addNumbers();
    void fillNumbers();

    std::shared_ptr<const ChartData> data = std::make_shared<const ChartData>();
    Chart* bars = nullptr;
    QScrollBar* scrollBar = nullptr;
    DisclosureButton* opener = nullptr;
    QLabel* nothing = nullptr;
    ChartNumbers* numbers = nullptr;  ///< Null until wanted, where there is a chart.
};

}  // namespace quillon
