#pragma once

#include <QWidget>

class QLabel;
class QVBoxLayout;

namespace quillon {

/// What belongs together in a pane of figures: a heading and what stands below it, on a ground of its own
/// with rounded corners.
class Card : public QWidget {
    Q_OBJECT

  public:
    /// An empty `heading` gives none.
    explicit Card(const QString& heading, QWidget* parent = nullptr);

    void setHeading(const QString& heading);
    /// Where the content goes, from top to bottom.
    QVBoxLayout& content() const { return *column; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QVBoxLayout* column;
    QLabel* headingLine;
};

/// Paints the ground of a card or a tile into the whole of `widget`.
void paintCardGround(QWidget& widget);

}  // namespace quillon
