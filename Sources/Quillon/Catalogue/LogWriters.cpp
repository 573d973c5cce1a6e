// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Catalogue/LogWriters.h"

#include "Tallyrig/Log/ProgramName.h"
#include "Tallyrig/Text/Text.h"
#include "Tallyrig/Validation/ADIFSpec317.h"

#include <string>

namespace quillon {

namespace {

template <typename Writer>
Writer writer(std::string_view wantedVersion, bool writeHeader) {
    return {std::string(tallyrig::programName), std::string(programVersion()),
            std::string(adifVersionFor(wantedVersion)), writeHeader};
}

}  // namespace

std::string_view programVersion() {
    constexpr std::string_view version = QUILLON_VERSION;
    return version.empty() ? "dev" : version;
}

std::string_view adifVersionFor(std::string_view wanted) {
    return tallyrig::text::trimmedOfBlanks(wanted).empty() ? tallyrig::ADIFSpec::version : wanted;
}

tallyrig::ADIFWriter adifWriter(std::string_view wantedVersion, bool writeHeader) {
    return writer<tallyrig::ADIFWriter>(wantedVersion, writeHeader);
}

tallyrig::ADXWriter adxWriter(std::string_view wantedVersion, bool writeHeader) {
    return writer<tallyrig::ADXWriter>(wantedVersion, writeHeader);
}

}  // namespace quillon
