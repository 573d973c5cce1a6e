// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QToolButton>

namespace quillon {

/// A button that opens and closes what stands below it, with an arrow that shows which; those who do not see
/// it are told as well. Return presses it as the space bar does.
class DisclosureButton : public QToolButton {
    Q_OBJECT

  public:
    explicit DisclosureButton(const QString& text, QWidget* parent = nullptr);

    bool isExpanded() const { return expanded; }
    void setExpanded(bool isOpen);

  signals:
    void expandedChanged();

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    bool expanded = false;
};

}  // namespace quillon
