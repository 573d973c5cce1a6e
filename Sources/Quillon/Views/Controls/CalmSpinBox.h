// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSpinBox>
#include <QWheelEvent>

namespace quillon {

/// A stepper for panes that scroll: turning the wheel over it scrolls the pane and leaves the number alone.
class CalmSpinBox : public QSpinBox {
    Q_OBJECT

  public:
    explicit CalmSpinBox(QWidget* parent = nullptr) : QSpinBox(parent) {
        // Nor does the wheel bring the keyboard here.
        setFocusPolicy(Qt::StrongFocus);
    }

  protected:
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

}  // namespace quillon
