// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/TableMetrics.h"
#include "Tallyrig/Log/ADIFRecord.h"

#include <QRectF>
#include <QString>

#include <string>

class QFont;
class QPainter;
class QPalette;

namespace quillon {

/// How the value of a field is written in a cell.
enum class CellText {
    readable,  ///< As a person writes a date, a time and so on.
    stored,    ///< As it stands in the log, so that two that differ look different.
};

/// One cell as it is shown while nobody edits it.
struct CellView {
    const tallyrig::ADIFRecord& record;
    const std::string& column;  ///< In upper case.
    CellText writing = CellText::readable;

    /// What the cell says: the field on one line, with signs for what would act unseen; a text far too long
    /// for any cell cut off.
    QString text() const;
    /// `area` is the cell with its divider. The painter brings the font of the cells along.
    void paint(QPainter& painter, const QRectF& area, const TableMetrics& metrics,
               const QPalette& palette) const;
    /// Whether the text is wider than its place in a cell of `area`.
    bool isCutOff(const QRectF& area, const TableMetrics& metrics, const QFont& font) const;

  private:
    bool hasBandDot() const;
    QRectF textArea(const QRectF& area, const TableMetrics& metrics) const;
};

}  // namespace quillon
