// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Views/Compare/ComparedLogs.h"

#include <QRectF>
#include <QWidget>

class QPainter;
class QPalette;

namespace quillon {

/// The sign for what a row of a comparison is, told apart by its shape as well as its colour: two lines for
/// one that is equal, struck through for one that differs, and an arrow to the side that alone has the QSO.
/// Drawn in the middle of `area`, on the ground of a window.
void paintStatusSign(QPainter& painter, const QRectF& area, ComparedLogs::Status status,
                     const QPalette& palette);

/// The sign by itself, for a legend.
class StatusSign : public QWidget {
    Q_OBJECT

  public:
    explicit StatusSign(ComparedLogs::Status shownStatus, QWidget* parent = nullptr);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    ComparedLogs::Status status;
};

}  // namespace quillon
