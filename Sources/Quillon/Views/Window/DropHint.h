// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace quillon {

/// Covers the window while a file is held over it, and says what letting go would do.
class DropHint : public QWidget {
    Q_OBJECT

  public:
    /// Hidden at first.
    explicit DropHint(QWidget& window);

    /// Appears and says that letting go would do this.
    void showFor(const QString& purpose);

  protected:
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    QString text;
};

}  // namespace quillon
