// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/Files/UniqueNames.h"

#include "Tallyrig/Text/Text.h"

namespace quillon {

std::string UniqueNames::next(std::string_view name, std::string_view extension) {
    std::string whole = std::string(name) + std::string(extension);
    std::size_t& lastNumber = lastNumbers[tallyrig::text::canonicalKey(whole)];
    if (lastNumber == 0) {
        lastNumber = 1;
        return whole;
    }
    do {
        ++lastNumber;
        whole = std::string(name) + ' ' + std::to_string(lastNumber) + std::string(extension);
    } while (!lastNumbers.try_emplace(tallyrig::text::canonicalKey(whole), 1).second);
    return whole;
}

}  // namespace quillon
