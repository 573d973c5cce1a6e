// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Formats/LogReader.h"
#include "Tallyrig/Log/LogFormat.h"

#include <QString>

#include <optional>
#include <string_view>

namespace quillon {

/// What the first save over the file of a log takes from it.
enum class SavingConcern {
    noQSOs,       ///< Something stands in it, but no QSO was found.
    notWhole,     ///< Not all that stands in it was read.
    otherFormat,  ///< It is written in another format than it was read in.
};

/// The format in which a log is written to a file at `path`: ADX for that extension, otherwise ADI text.
tallyrig::LogFormat formatWrittenTo(const QString& path);

/// The gravest concern about saving over the file at `path`, which held `bytes` and was read as `log`.
std::optional<SavingConcern> concernAboutSaving(const tallyrig::LogReader::Log& log, std::string_view bytes,
                                                const QString& path);

}  // namespace quillon
