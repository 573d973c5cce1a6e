#pragma once

#include <QComboBox>

namespace quillon {

/// A picker for panes that scroll: turning the wheel over it scrolls the pane instead of changing what is
/// chosen, and a choice that is too long for the pane does not make the pane wider but ends in "…".
class CalmComboBox : public QComboBox {
    Q_OBJECT

  public:
    explicit CalmComboBox(QWidget* parent = nullptr);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
};

}  // namespace quillon
