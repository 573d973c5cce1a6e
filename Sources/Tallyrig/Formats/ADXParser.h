// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFDocument.h"
#include "Tallyrig/Log/ReadDocument.h"

#include <string_view>

namespace tallyrig {

/// Reads ADX files (ADIF 3.1.7, section "ADX Files"), the XML form of ADIF, into the same fields as an ADI
/// file of that content: application fields become `APP_<PROGRAM>_<FIELD>`, user-defined ones of the header
/// `USERDEF<n>`. No state; each call is by itself.
class ADXParser {
  public:
    /// The document in `data`, in any encoding that XML declares and expat knows: UTF-8, UTF-16, ISO 8859-1
    /// and US-ASCII. The comment is always empty. What is no well-formed XML ends the reading: the records
    /// closed before that place are kept. So do an undefined entity, entities that swell the file out of
    /// proportion and some hundred declarations of them. External entities are left out and never fetched,
    /// and attributes that only a declaration gives to an element are not taken.
    static ADIFDocument parse(std::string_view data);
    /// The same document, and what of the file is not in it or probably not as it was meant. Offsets are
    /// those of `data`.
    static ReadDocument read(std::string_view data);
};

}  // namespace tallyrig
