// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFDocument.h"
#include "Tallyrig/Log/ReadDocument.h"

#include <string_view>

namespace tallyrig {

/// Reads ADI files (ADIF 3.1.7, section "ADI Files"). Forgiving: any bytes give a document, and what can be
/// read is kept. No state; each call is by itself.
class ADIFParser {
  public:
    /// The document in `data`, the bytes of a file without byte order mark; it does not refer to them. All
    /// text in it is well-formed UTF-8.
    ///
    /// Lengths in tags are bytes of the file; each comment, tag and value is decoded by itself, as UTF-8 if
    /// it is that and as ISO 8859-1 if not. A length that runs past the end is cut there, one that is no
    /// number counts as 0. The fields between an `<EOH>` and the mark before it are the header's (of several
    /// the last counts); without one there is neither header nor comment. Fields behind the last `<EOR>` are
    /// a record too. Bytes without any tag give the empty document.
    static ADIFDocument parse(std::string_view data);

    /// The same document, and what of the file is not in it or probably not as it was meant. Offsets are
    /// those of `data`.
    static ReadDocument read(std::string_view data);
};

}  // namespace tallyrig
