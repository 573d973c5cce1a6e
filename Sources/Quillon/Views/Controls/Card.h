// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QHBoxLayout;
class QVBoxLayout;

namespace quillon {

class ElidedLabel;

/// What belongs together in a pane of figures: a heading and what stands below it, on a ground of its own
/// with rounded corners.
class Card : public QWidget {
    Q_OBJECT

  public:
    /// An empty `heading` gives none.
    explicit Card(const QString& heading, QWidget* parent = nullptr);

    void setHeading(const QString& heading);
    /// Puts a control on the line of the heading, behind those that are there, at the right.
    void putBesideHeading(QWidget* control);
    /// Frames the card as what has the keyboard.
    void setFramed(bool framed);
    /// Where the content goes, from top to bottom.
    QVBoxLayout& content() const { return *column; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QVBoxLayout* column;
    QHBoxLayout* headRow;
    ElidedLabel* headingLine;
    bool isFramed = false;
};

/// Paints the ground of a card or a tile into the whole of `widget`, with the frame of what has the keyboard
/// or without.
void paintCardGround(QWidget& widget, bool isFramed = false);

}  // namespace quillon
