// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Views/Reading/RawPlace.h"

#include <QPlainTextEdit>

namespace quillon {

/// A few lines of a file, with their numbers beside them and one place marked. They can be read, selected and
/// copied, not changed.
class RawPlaceView : public QPlainTextEdit {
    Q_OBJECT

  public:
    explicit RawPlaceView(QWidget* parent = nullptr);

    /// Shows the place in the middle, with the marked part as what is seen of its line at least.
    void showPlace(const RawPlace& place);

    /// The numbers beside the lines, from top to bottom.
    QStringList lineNumbers() const;
    /// What is marked.
    QString markedText() const;

  protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    class Margin;

    int marginWidth() const;
    void layOut();
    void mark();
    void showMark();
    void paintNumbers(QPainter& painter) const;

    QWidget* margin;
    RawPlace raw;
};

}  // namespace quillon
