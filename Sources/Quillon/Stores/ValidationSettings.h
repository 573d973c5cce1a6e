// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Catalogue/DuplicateCriterion.h"
#include "Quillon/Platform/Settings.h"
#include "Tallyrig/Validation/ADIFValidator.h"

#include <QString>

namespace quillon {

/// The keys of the settings, as they are stored.
namespace setting {
inline const QString writeHeaderOnSave = QStringLiteral("writeHeaderOnSave");
inline const QString adifVersion = QStringLiteral("adifVersion");
inline const QString checkRequired = QStringLiteral("checkRequired");
inline const QString checkFormat = QStringLiteral("checkFormat");
inline const QString checkDuplicates = QStringLiteral("checkDuplicates");
inline const QString checkUnknownFields = QStringLiteral("checkUnknownFields");
inline const QString duplicateCriterion = QStringLiteral("duplicateCriterion");
}  // namespace setting

/// What counts as a duplicate, as the user set it; "Call + Band + Modus" where nothing known is set.
DuplicateCriterion currentDuplicateCriterion(const Settings& settings);

/// The validator for the check of a log, as the user set it up.
tallyrig::ADIFValidator validatorFor(const Settings& settings);

}  // namespace quillon
