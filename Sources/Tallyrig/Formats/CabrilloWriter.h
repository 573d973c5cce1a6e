// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Formats/CabrilloHeader.h"
#include "Tallyrig/Log/ADIFDocument.h"
#include "Tallyrig/Log/ADIFRecord.h"

#include <optional>
#include <string>
#include <string_view>

namespace tallyrig {

/// Renders documents as Cabrillo (Cabrillo 3.0) for a contest. No mirror of the reader: frequency, mode and
/// exchange have rules of their own. Missing data shows as blanks, a frequency of 0, the mode DG or a dash.
struct CabrilloWriter {
    CabrilloHeader header;

    /// The complete text, its QSOs in order of time, with CR LF behind each line. Where the header has no
    /// call the suggested one is taken.
    std::string write(const ADIFDocument& document) const;

    /// One QSO line, without line end; `myCall` is the sent call.
    std::string qsoLine(const ADIFRecord& record, std::string_view myCall) const;

    /// In whole kHz: `freq` (in MHz) if it is a number, otherwise the frequency that stands for `band`. "0"
    /// where neither helps and for a number beyond all frequencies.
    static std::string cabrilloFrequency(std::optional<std::string_view> freq,
                                         std::optional<std::string_view> band);
    /// The mode in two letters, of any case: CW, PH, RY, and DG for all others and for none.
    static std::string cabrilloMode(std::optional<std::string_view> mode);
    /// Eight characters with hyphens behind the fourth and the sixth; anything else as it stands.
    static std::string cabrilloDate(std::optional<std::string_view> date);
};

}  // namespace tallyrig
