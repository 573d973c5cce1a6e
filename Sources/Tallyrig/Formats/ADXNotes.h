// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ReadingNotes.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace tallyrig {

/// What is to be said of an ADX file besides its QSOs. The reader tells it what it meets, in the order of the
/// file.
class ADXNotes {
  public:
    /// `data` is the file; it outlives this.
    explicit ADXNotes(std::string_view data) : file(data), notes(data) {}

    /// `offset` says where in the file the reader is; it may be behind its end.
    void follow(std::function<std::size_t()> offset) { readerOffset = std::move(offset); }

    /// Whether a table of ADIF knows a field of this name, in upper case.
    static bool isKnown(std::string_view upperName);

    /// A field begins; of those within each other the latest counts.
    void tellLeaf() { leafOffset = offset(); }
    /// `element` is what the kind says of an element, empty if that is nothing.
    void tell(ReadingKind kind, std::string_view element, std::optional<std::size_t> recordIndex);
    /// An element that no table knows, told each time that it closes.
    void tellUnknown(std::string_view element, std::optional<std::size_t> recordIndex);
    /// The reader goes no further. A record that is open is lost.
    void tellEnd(XMLFault fault, bool isInRecord);

    /// All of it, for a log of `recordCount` records. Nothing may be told afterwards.
    ReadingReport report(std::size_t recordCount) &&;

  private:
    struct Unknown {
        std::size_t offset = 0;
        std::optional<std::size_t> recordIndex;
        std::size_t count = 0;
    };

    std::size_t offset() const { return std::min(readerOffset(), file.size()); }

    std::string_view file;
    ReadingNotes notes;
    std::function<std::size_t()> readerOffset;
    std::size_t leafOffset = 0;
    std::map<std::string, Unknown, std::less<>> unknown;
};

}  // namespace tallyrig
