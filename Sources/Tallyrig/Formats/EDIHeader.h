// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFDocument.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace tallyrig {

/// What stands in the points column of an EDI file: the kilometres of each QSO, nothing (the evaluator works
/// them out), or the value of a field.
enum class EDIPointsMode { distance, blank, adifField };

/// The text by which a mode is stored: the name of its case.
std::string_view storedText(EDIPointsMode mode);
/// The mode of a stored text, absent for any other text.
std::optional<EDIPointsMode> ediPointsMode(std::string_view storedText);

/// What an EDI file says besides the QSOs. Plain texts, written as they stand.
struct EDIHeader {
    std::string contestName;
    std::string dateStart;  ///< "YYYYMMDD", as `dateEnd`.
    std::string dateEnd;
    std::string callsign;  ///< Where empty, the writer takes the suggested one, as for `locator`.
    std::string locator;
    std::string section;
    std::string band;  ///< By its EDI name: "144 MHz".
    std::string club;
    std::string operators;  ///< Separated by commas; the file has room for eight.
    std::string responsibleName;
    std::string responsibleCall;
    std::string responsibleEmail;
    std::string address1;
    std::string address2;
    std::string postalCode;
    std::string city;
    std::string txEquipment;
    std::string rxEquipment;
    std::string power;
    std::string antenna;
    std::string antennaHeight;
    std::string remarks;  ///< May have several lines.
    EDIPointsMode pointsMode = EDIPointsMode::distance;
    std::string pointsField = "DISTANCE";  ///< The field of the mode `adifField`.

    /// What the log itself says about its contest, dates, station, band and operator; all else is empty.
    static EDIHeader suggested(const ADIFDocument& document);

    /// The names of all members in their order.
    static std::span<const std::string_view> memberNames();
    /// Sets the member of that name, exactly as spelt above. False, with nothing changed, if there is none or
    /// if `value` is no stored text of a points mode for `pointsMode`.
    bool setMember(std::string_view name, std::string_view value);

    friend bool operator==(const EDIHeader&, const EDIHeader&) = default;
};

}  // namespace tallyrig
