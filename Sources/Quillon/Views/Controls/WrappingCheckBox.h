// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCheckBox>
#include <QFont>

namespace quillon {

/// A check box whose text goes on in a second line where the pane is narrow.
class WrappingCheckBox : public QCheckBox {
    Q_OBJECT

  public:
    explicit WrappingCheckBox(const QString& text, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

  protected:
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }
    void paintEvent(QPaintEvent* event) override;

  private:
    /// What stands left of the text: the box and the gap behind it.
    int boxWidth() const;

    mutable int knownWidth = -1;
    mutable int knownHeight = 0;
    mutable QFont knownFont;
};

}  // namespace quillon
