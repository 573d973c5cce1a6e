// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Outdoor/OutdoorConformance.h"

#include "Tallyrig/Log/RecordValues.h"
#include "Tallyrig/Outdoor/ValueFindings.h"
#include "Tallyrig/Text/Text.h"

#include <cstddef>
#include <string>

namespace tallyrig {

std::vector<ValidationIssue> OutdoorConformance::issues(const ADIFDocument& document) const {
    std::vector<ValidationIssue> issues;
    if (!isADIF(program)) {
        return issues;
    }
    const std::string name(rawValue(program));
    const std::string expectedSig = text::upper(sigValue(program).value_or(std::string_view()));
    const auto missingCall =
        Shared<ValidationKind>::make(finding::OutdoorMissingField{name, "STATION_CALLSIGN/OPERATOR"});
    const auto checkReferences = [&](std::string_view list, auto add) {
        forEachReference(list, [&](std::string_view reference) {
            if (!isValidReference(program, reference)) {
                add(finding::OutdoorInvalidReference{name, "MY_SIG_INFO", std::string(reference)});
            }
        });
    };
    const auto checkSig = [&](std::string_view value, auto add) {
        std::string sig = text::upper(text::trimmedOfBlanks(value));
        if (!sig.empty() && !text::equal(sig, expectedSig)) {
            add(finding::OutdoorWrongSig{name, std::move(sig)});
        }
    };

    enum Field : std::size_t { stationCallsign, operatorCall, sigInfo, sig };
    RecordValues values({"STATION_CALLSIGN", "OPERATOR", "MY_SIG_INFO", "MY_SIG"});
    ValueFindings references;
    ValueFindings sigs;
    std::size_t recordIndex = 0;
    for (const ADIFRecord& record : document.records()) {
        values.read(record);
        if (values.trimmed(stationCallsign).empty() && values.trimmed(operatorCall).empty()) {
            issues.emplace_back(recordIndex, missingCall);
        }
        references.addTo(issues, recordIndex, values.valueOrEmpty(sigInfo), checkReferences);
        sigs.addTo(issues, recordIndex, values.valueOrEmpty(sig), checkSig);
        ++recordIndex;
    }
    return issues;
}

}  // namespace tallyrig
