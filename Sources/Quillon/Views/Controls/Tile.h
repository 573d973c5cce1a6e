// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Views/Controls/Tone.h"

#include <QWidget>

class QLabel;

namespace quillon {

/// A key figure with the word for it below, on a ground of its own. The figure can be copied.
class Tile : public QWidget {
    Q_OBJECT

  public:
    explicit Tile(const QString& caption, QWidget* parent = nullptr);

    void setCaption(const QString& caption);
    /// `figure` as it is read, such as "1.204".
    void setFigure(const QString& figure, Tone tone = Tone::plain);

  protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void nameFigure();
    void color();

    QLabel* number;
    QLabel* word;
    Tone figureTone = Tone::plain;
};

}  // namespace quillon
