// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Views/Controls/ChartGeometry.h"

#include <QImage>
#include <QPixmap>
#include <QWidget>

#include <cstddef>
#include <memory>
#include <optional>

namespace quillon {

class ChartPainter;
struct ChartPicture;

/// A chart of bars. A bar says what it stands for when the pointer is over it; with the keyboard one goes
/// from bar to bar with the arrows, and what a bar says is told to assistive technology as well. Copying puts
/// a picture of the chart into the clipboard.
class Chart : public QWidget {
    Q_OBJECT

  public:
    /// The painter outlives the chart.
    explicit Chart(ChartPainter& chartPainter, QWidget* parent = nullptr);

    const ChartData& data() const { return *shown; }
    /// Goes on where the keyboard was, if there is such a bar.
    void setData(std::shared_ptr<const ChartData> data);
    const ChartGeometry& places() const { return layout; }

    /// Lets this bar be the first in sight, as far as that leaves no gap behind the last.
    void showFrom(std::size_t firstBar);

    /// The bar where the keyboard is.
    const std::optional<std::size_t>& currentBar() const { return current; }
    /// Goes to a bar and brings it into sight.
    void goTo(std::size_t bar);
    /// What is said of a bar: of the one that the pointer is over, otherwise where the keyboard is; null if
    /// nothing is.
    QString readout() const;

    /// The chart with its title, for a document.
    QImage picture() const;
    void copyPicture() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  signals:
    /// Other bars are in sight, or there is room for more or fewer.
    void sightChanged();
    /// The keyboard came or went.
    void focusChanged(bool hasKeyboard);

  protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    void layOut();
    void repaintDiagram();
    /// The bar that a key leads to; none if the key is not for the chart.
    std::optional<std::size_t> barBehind(int key) const;
    std::optional<std::size_t> markedBar() const;
    void paintMark(QPainter& painter) const;
    void paintDiagram(QPaintDevice& device) const;

    ChartPainter& painter;
    std::shared_ptr<const ChartData> shown = std::make_shared<const ChartData>();
    ChartGeometry layout;
    std::size_t firstWanted = 0;
    std::optional<std::size_t> current;
    std::optional<std::size_t> pointed;  ///< The bar under the pointer.
    QPixmap diagram;                     ///< What the painter painted; null if it has to anew.
};

}  // namespace quillon
