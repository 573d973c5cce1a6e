// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/SavingConcern.h"

#include "Quillon/Platform/FileNames.h"
#include "Tallyrig/Text/Text.h"

namespace quillon {

tallyrig::LogFormat formatWrittenTo(const QString& path) {
    return extensionOf(path).toLower() == QLatin1String("adx") ? tallyrig::LogFormat::adx
                                                               : tallyrig::LogFormat::adif;
}

std::optional<SavingConcern> concernAboutSaving(const tallyrig::LogReader::Log& log, std::string_view bytes,
                                                const QString& path) {
    if (log.document.records().empty()) {
        return tallyrig::text::trimmed(bytes).empty() ? std::nullopt : std::optional(SavingConcern::noQSOs);
    }
    if (log.report.placeCount(tallyrig::ReadingSeverity::error) > 0) {
        return SavingConcern::notWhole;
    }
    return log.format == formatWrittenTo(path) ? std::nullopt : std::optional(SavingConcern::otherFormat);
}

}  // namespace quillon
