// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSizeF>
#include <QWidget>

class QScrollBar;

namespace quillon {

/// The scroll container of the table: a header that follows the horizontal position only, the body under it,
/// on their left a ruler that follows the vertical one only, and both scroll bars, always shown. The body is
/// a viewport: it stays where it is and paints the part that is scrolled to. The wheel goes up and down, with
/// the shift key to the sides.
///
/// All values are logical pixels. Changes smaller than 0.5 are not reported, so that jitter repaints nothing.
class TableScroll : public QWidget {
    Q_OBJECT

  public:
    explicit TableScroll(QWidget* parent = nullptr);

    /// Takes the three into the layout, once. The ruler stands beside header and body; null if there is none.
    void setContent(QWidget* headerWidget, QWidget* bodyWidget, QWidget* rulerWidget);
    /// From now on the two go up and down together, by the bar of `other`, which is as high and has rows as
    /// many and as high; the one of this container is not shown. To be called once, for one of the two.
    void moveUpAndDownWith(TableScroll& other);
    /// How far a step of the scroll bar goes, in rows one.
    void setRowHeight(double height);
    /// A position beyond the new end moves to it.
    void setContentSize(QSizeF size);

    double scrollX() const { return x; }
    double scrollY() const { return y; }
    /// The height of the body as last reported; 0 before it was laid out.
    double viewportHeight() const { return reportedHeight; }
    double viewportWidth() const;

    /// Moves there, as far as the content goes, if the position differs by more than 0.5.
    void setScrollX(double position);
    void setScrollY(double position);

  signals:
    void scrollXChanged();
    void scrollYChanged();
    void viewportHeightChanged();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    void fitBars();
    void report();

    QWidget* header = nullptr;
    QWidget* body = nullptr;
    QScrollBar* horizontal;
    QScrollBar* vertical;
    QSizeF content;
    double x = 0;
    double y = 0;
    double reportedHeight = 0;
};

}  // namespace quillon
