// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Outdoor/SOTAConformance.h"

#include "Tallyrig/Log/RecordValues.h"
#include "Tallyrig/Outdoor/OutdoorProgram.h"
#include "Tallyrig/Outdoor/SOTAReference.h"
#include "Tallyrig/Outdoor/ValueFindings.h"
#include "Tallyrig/Text/Text.h"

#include <cstddef>
#include <string>

namespace tallyrig {

std::vector<ValidationIssue> SOTAConformance::issues(const ADIFDocument& document) const {
    const std::string name(rawValue(OutdoorProgram::sota));
    const std::string field(summitField(role));
    // The message names one field of the two that would do.
    const auto missingCall =
        Shared<ValidationKind>::make(finding::OutdoorMissingField{name, "STATION_CALLSIGN"});
    const auto checkReference = [&](std::string_view reference, auto add) {
        if (!SOTAReference::isValid(reference)) {
            add(finding::OutdoorInvalidReference{name, field, std::string(reference)});
        }
    };
    const auto checkSummits = [&](std::string_view value, auto add) {
        const std::string_view summits = text::trimmed(value);
        if (role == SOTARole::activator) {
            if (summits.empty()) {
                add(finding::OutdoorMissingField{name, field});
            }
            forEachReference(summits, [&](std::string_view reference) { checkReference(reference, add); });
        } else if (!summits.empty()) {
            // Nobody is on two summits when he is worked.
            checkReference(summits, add);
        }
    };

    enum Field : std::size_t { stationCallsign, operatorCall, summit };
    RecordValues values({"STATION_CALLSIGN", "OPERATOR", summitField(role)});
    ValueFindings summits;
    std::vector<ValidationIssue> issues;
    std::size_t recordIndex = 0;
    for (const ADIFRecord& record : document.records()) {
        values.read(record);
        if (text::trimmedOfBlanks(values.valueOrEmpty(stationCallsign)).empty() &&
            text::trimmedOfBlanks(values.valueOrEmpty(operatorCall)).empty()) {
            issues.emplace_back(recordIndex, missingCall);
        }
        summits.addTo(issues, recordIndex, values.valueOrEmpty(summit), checkSummits);
        ++recordIndex;
    }
    return issues;
}

}  // namespace tallyrig
