// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Formats/EDIHeader.h"
#include "Tallyrig/Geography/Locator.h"
#include "Tallyrig/Log/ADIFDocument.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tallyrig {

/// Renders documents as EDI files, the REG1TEST format of VHF and UHF contests: the header, the claimed
/// score and one line of semicolons for each QSO. Always gives a text; a sum beyond 64 bits stays at the
/// greatest or least of their numbers.
struct EDIWriter {
    EDIHeader header;

    /// The whole file, each line ended by CR LF, with the QSOs in order of time.
    std::string write(const ADIFDocument& document) const;

    /// The fifteen columns of a QSO, of which three are not the record's alone: the locator received, the
    /// points and the mark of a duplicate. Without line end.
    static std::string qsoLine(const ADIFRecord& record, std::string_view rcvdWWL, std::string_view points,
                               std::string_view dupl);

    /// The EDI name of an ADIF band in any case; a band that EDI does not know as it is.
    static std::string_view ediBand(std::string_view adifBand);
    /// The mode code; "1", phone, for any mode that has none. FT8 stands for all of its kind.
    static std::string_view ediMode(std::optional<std::string_view> mode);
    /// For each record whether the same call stands before it on the same band. The band counts as it is
    /// written: "2m" and "2M" are two.
    static std::vector<bool> computeDupes(std::span<const ADIFRecord> records);
    /// The last word of the exchange that is all digits; empty if there is none.
    static std::string_view serialFromExchange(std::optional<std::string_view> exchange);
    /// The kilometres that a QSO counts, a started one in full: by its `DISTANCE` if that is a number,
    /// otherwise between the locators. 0 if neither says, or where `DISTANCE` is not finite or beyond 64
    /// bits.
    static std::int64_t qrbKm(const ADIFRecord& record, std::string_view myLocator);

    static std::optional<Coordinate> maidenheadToCoordinate(std::string_view locator) {
        return tallyrig::maidenheadToCoordinate(locator);
    }
    static std::optional<double> greatCircleKm(std::string_view from, std::string_view to) {
        return tallyrig::greatCircleKm(from, to);
    }
    static std::optional<std::int64_t> distanceKm(std::string_view from, std::string_view to) {
        return tallyrig::distanceKm(from, to);
    }
};

}  // namespace tallyrig
