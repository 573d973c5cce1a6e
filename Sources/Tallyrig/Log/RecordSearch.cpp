// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Log/RecordSearch.h"

#include "Tallyrig/Text/ASCII.h"

namespace tallyrig {

FieldName::FieldName(std::string_view name) : upperName(name) {
    for (const char c : name) {
        if (text::isASCIILower(c) || static_cast<unsigned char>(c) >= 0x80) {
            text = text::upper(name);
            upperName = text;
            isASCII = text::isASCII(text);
            return;
        }
    }
}

}  // namespace tallyrig
