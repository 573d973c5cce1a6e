#include "Tallyrig/Contest/ContestFields.h"

#include "Tallyrig/Geography/DXCCInfo.h"
#include "Tallyrig/Text/Text.h"

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

void ContestFields::read(const ADIFRecord& record) {
    values.read(record);
    ++recordNumber;
    derivedDXCC.reset();
    if (dxcc && trimmed(*dxcc).empty()) {
        derivedDXCC = DXCCInfo::dxccCode(values.valueOrEmpty(call));
    }
}

std::string_view ContestFields::trimmed(std::size_t field) const {
    return text::trimmedOfBlanks(valueOrEmpty(field));
}

std::string_view ContestFields::upper(std::size_t field) {
    Folded& value = folded[field];
    if (value.record != recordNumber) {
        value.text = text::upper(trimmed(field), value.buffer);
        value.record = recordNumber;
    }
    return value.text;
}

}  // namespace tallyrig
