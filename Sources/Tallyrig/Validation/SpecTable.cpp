// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Validation/SpecTable.h"

#include "Tallyrig/Text/Text.h"

namespace tallyrig {

std::optional<std::size_t> SpecIndex::find(std::string_view name) const {
    auto found = positions.find(name);
    if (found == positions.end() && !text::isASCII(name)) {
        // U+212A, KELVIN SIGN, is another spelling of "K".
        found = positions.find(text::canonicalKey(name));
    }
    return found == positions.end() ? std::nullopt : std::optional(found->second);
}

SpecSet::SpecSet(std::span<const std::string_view> texts) : values(texts), index(texts.size()) {
    for (const std::string_view text : values) {
        index.add(text);
    }
}

}  // namespace tallyrig
