// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Log/NamedFields.h"

#include "Tallyrig/Text/Text.h"

namespace tallyrig {

namespace {

std::string keyOf(std::string_view name) {
    return text::canonicalKey(text::upper(name));
}

}  // namespace

NamedFields::NamedFields(std::span<const std::string> names) {
    for (std::size_t position = 0; position < names.size(); ++position) {
        positionByKey.try_emplace(keyOf(names[position]), position);
    }
}

std::optional<std::size_t> NamedFields::positionOf(std::string_view name) const {
    const auto found = positionByKey.find(keyOf(name));
    return found == positionByKey.end() ? std::nullopt : std::optional(found->second);
}

}  // namespace tallyrig
