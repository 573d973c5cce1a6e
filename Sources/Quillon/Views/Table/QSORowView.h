// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Views/Grid/RowGround.h"
#include "Quillon/Views/Grid/TableGeometry.h"
#include "Tallyrig/Log/ADIFRecord.h"
#include "Tallyrig/Validation/ValidationKind.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

class QPainter;
class QPalette;
class QRectF;

namespace quillon {

/// One row of the table: its ground, its cells and its mark.
struct QSORowView {
    const tallyrig::ADIFRecord& record;
    const std::vector<std::string>& columns;
    std::size_t rowIndex = 0;  ///< Among the displayed records.
    bool isSelected = false;
    std::optional<tallyrig::ValidationSeverity> severity;

    /// `origin` is where the content's left edge and the row's top lie. Only the cells that meet `exposed`
    /// are painted.
    void paint(QPainter& painter, QPointF origin, const QRectF& exposed, const TableGeometry& geometry,
               const QPalette& palette) const;
    /// The mark in `area`, on the row's ground, which covers the cells that are scrolled under it.
    void paintMark(QPainter& painter, const QRectF& area, const QPalette& palette) const;

  private:
    RowGround ground() const { return {rowIndex, isSelected}; }
};

}  // namespace quillon
