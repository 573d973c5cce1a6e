// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Log/LogFormat.h"

#include "Tallyrig/Text/Decoding.h"
#include "Tallyrig/Text/Text.h"

namespace tallyrig {

LogFormat LogFormatDetector::detect(std::string_view data) {
    const std::string_view head = data.substr(0, 2048);
    const std::string decodedHead = text::repaired(head);
    const std::string marker = text::upper(text::trimmed(decodedHead));
    if (text::contains(marker, "[REG1TEST")) {
        return LogFormat::edi;
    }
    if (marker.starts_with("START-OF-LOG")) {
        return LogFormat::cabrillo;
    }
    if (marker.starts_with("<?XML") || text::contains(marker, "<ADX")) {
        return LogFormat::adx;
    }
    return LogFormat::adif;
}

}  // namespace tallyrig
