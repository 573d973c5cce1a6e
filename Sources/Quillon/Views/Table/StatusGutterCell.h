// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Validation/ValidationKind.h"

#include <QRectF>
#include <QString>

#include <optional>
#include <string>
#include <vector>

class QPainter;

namespace quillon {

/// The mark in front of a row that says what the last check found in it.
struct StatusGutterCell {
    std::optional<tallyrig::ValidationSeverity> severity;  ///< Absent for a record without findings.
    std::vector<std::string> messages;                     ///< For the tool tip only; painting needs none.

    void paint(QPainter& painter, const QRectF& area) const;
    /// The messages, one to a line; empty if there are none, cut off where nobody would read on.
    QString toolTip() const;
};

}  // namespace quillon
