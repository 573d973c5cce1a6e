// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>

class QStyleOptionComboBox;

namespace quillon {

/// A picker for panes that scroll: turning the wheel over it scrolls the pane instead of changing what is
/// chosen, and a choice that is too long for the pane does not make the pane wider but ends in "…", with the
/// whole as its tool tip.
class CalmComboBox : public QComboBox {
    Q_OBJECT

  public:
    explicit CalmComboBox(QWidget* parent = nullptr);

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    int textRoom(const QStyleOptionComboBox& option) const;
};

}  // namespace quillon
