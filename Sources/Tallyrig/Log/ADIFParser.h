#pragma once

#include "Tallyrig/Log/ADIFDocument.h"

#include <string_view>

namespace tallyrig {

/// Reads ADI files (ADIF 3.1.7, section "ADI Files"). Forgiving: any bytes give a document, and what can be
/// read is kept. No state; each call is by itself.
class ADIFParser {
  public:
    /// The document in `data`. Lengths in tags are bytes of the file; each comment, tag and value is decoded
    /// by itself, as UTF-8 if it is that and as ISO 8859-1 if not. A length that runs past the end is cut
    /// there.
    static ADIFDocument parse(std::string_view data);
};

}  // namespace tallyrig
