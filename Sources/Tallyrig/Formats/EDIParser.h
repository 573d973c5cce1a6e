// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFDocument.h"
#include "Tallyrig/Log/ReadDocument.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace tallyrig {

/// Reads EDI files, the REG1TEST format of VHF and UHF contests. Forgiving: any bytes give a document, and
/// what can be read becomes ordinary ADIF fields. No state; each call is by itself.
struct EDIParser {
    /// What the header of a file says for all its QSOs, ready to be written into each.
    struct CommonValues {
        std::string century = "20";
        std::string myCall;
        std::string myLoc;
        std::string contest;
        std::string band;
        std::string operators;
    };

    /// The document in `data`, without header fields: what the header says is in every record. The free text
    /// of the remarks is lost.
    static ADIFDocument parse(std::string_view data);
    /// The same document, and what of the file is not in it or probably not as it was meant. That the header
    /// is kept in part only and the remarks are not goes without saying. Offsets are those of `data`.
    static ReadDocument read(std::string_view data);

    /// The record of one line of the QSO section. Absent for a line of fewer than four columns; a call is not
    /// asked for.
    static std::optional<ADIFRecord> record(std::string_view line, const CommonValues& common);

    /// The ADIF band of an EDI band name in any case; any other text trimmed, as it is written.
    static std::string adifBand(std::string_view ediBand);
    /// The calls in their order, trimmed and in upper case, separated by commas; empty ones are left out.
    static std::string operators(std::span<const std::string_view> calls);
    /// The first two digits of the contest's first day, "20" where `tDate` has no year of four digits or
    /// marks on them without end.
    static std::string century(std::optional<std::string_view> tDate);
    /// The digits of "YYMMDD" with the century in front, any other number of digits as they are.
    static std::string adifDate(std::string_view ediDate, std::string_view century);
    /// The digits of "HHMM" with "00" behind, any other number of digits as they are.
    static std::string adifTime(std::string_view ediTime);
    /// The ADIF mode of a mode code; SSB for any text that is none.
    static std::string_view adifMode(std::string_view code);
};

}  // namespace tallyrig
