#pragma once

#include <QSpinBox>
#include <QWheelEvent>

namespace quillon {

/// A stepper for panes that scroll: turning the wheel over it scrolls the pane and leaves the number alone.
class CalmSpinBox : public QSpinBox {
    Q_OBJECT

  public:
    using QSpinBox::QSpinBox;

  protected:
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

}  // namespace quillon
