// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Contest/ContestFields.h"

#include "Tallyrig/Geography/DXCCInfo.h"

#include <algorithm>

namespace tallyrig {

std::size_t ContestFields::add(std::string_view name) {
    const std::size_t field = values.add(name);
    folded.resize(std::max(folded.size(), field + 1));
    if (text::upper(name) == "DXCC") {
        dxcc = field;
    }
    return field;
}

void ContestFields::deriveEntity() {
    derivedDXCC = {};
    if (text::trimmedOfBlanks(values.valueOrEmpty(dxcc)).empty()) {
        derivedDXCC = DXCCInfo::dxccCode(values.valueOrEmpty(call)).value_or(std::string_view());
    }
}

const ContestFields::Folded& ContestFields::foldedOf(std::size_t field, std::string_view value) {
    Folded& known = folded[field];
    if (known.record != recordNumber) {
        known.record = recordNumber;
        known.text.assign(text::upper(text::trimmedOfBlanks(value), known.key));
        if (text::isASCII(known.text)) {
            known.key.assign(known.text);
        } else {
            known.key = text::canonicalKey(known.text);
        }
    }
    return known;
}

}  // namespace tallyrig
