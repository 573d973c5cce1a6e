// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRectF>
#include <QString>

#include <optional>
#include <string>

class QPainter;
class QPalette;

namespace quillon {

/// One cell of the header: the column's German name, under it its field name and the button of its menu, at
/// its right edge the handle that changes its width.
struct ColumnHeaderCell {
    enum class Sort { none, ascending, descending };

    const std::string& column;
    Sort sort = Sort::none;
    bool isDragging = false;        ///< On its way to another place.
    bool isHoveringHandle = false;  ///< Or the handle is being dragged.
    bool isHoveringMenu = false;
    bool focused = false;  ///< For the keyboard.
    bool hasMenu = true;
    bool isTagClosed = false;

    QString label() const;
    /// What who does not see the cell is told of it besides the label: field name and order.
    QString remark() const;
    /// "<" and the field name, and ">" where the tag is closed.
    QString tag() const;

    /// `area` is the cell; the same for the places below.
    void paint(QPainter& painter, const QRectF& area, const QPalette& palette) const;
    static QRectF menuArea(const QRectF& area);
    /// The height that the two lines need, in whole pixels.
    static int height();
    /// Whether name or field name are wider than their place.
    bool isCutOff(const QRectF& area) const;

  private:
    QRectF labelArea(const QRectF& area) const;
    QRectF tagArea(const QRectF& area) const;
};

}  // namespace quillon
