// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Views/Controls/Tone.h"

#include <QString>

#include <optional>

namespace quillon {

/// A share from 0 to 1 of QSOs without an error, as it is shown.
struct Quota {
    std::optional<double> share;  ///< Absent where no QSO can be checked.

    /// A percentage with one decimal, "–" if it is absent.
    QString text() const;
    Tone tone() const;
};

}  // namespace quillon
