// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Geography/DXCCInfo.h"

#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/Pieces.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace tallyrig {

namespace {

struct Entity {
    std::string_view code;
    std::string_view continent;  ///< Empty where the table does not say.
    std::string_view prefixes;   ///< Separated by blanks; one to three letters and digits each.
};

// A few rows are odd and meant to be so: the Balearic Islands lie in Asia, some countries on no continent,
// and Uruguay has no prefix.
constexpr Entity entities[] = {
    {"287", "EU", "HB9 HB HE"},                                  // Switzerland
    {"251", "EU", "HB0"},                                        // Liechtenstein
    {"230", "EU", "DL DA DB DC DD DF DG DH DJ DK DM DO DP DR"},  // Germany
    {"206", "EU", "OE"},                                         // Austria
    {"227", "EU", "F TM"},                                       // France
    {"214", "EU", "TK"},                                         // Corsica
    {"223", "EU", "G M 2E"},                                     // England
    {"279", "EU", "GM MM 2M"},                                   // Scotland
    {"294", "EU", "GW MW 2W"},                                   // Wales
    {"265", "EU", "GI MI 2I"},                                   // Northern Ireland
    {"114", "", "GD"},                                           // Isle of Man
    {"106", "", "GU"},                                           // Guernsey
    {"122", "", "GJ"},                                           // Jersey
    {"245", "EU", "EI EJ"},                                      // Ireland
    {"248", "EU", "I IK IZ IW"},                                 // Italy
    {"225", "EU", "IS IM"},                                      // Sardinia
    {"281", "EU", "EA EB EC ED"},                                // Spain
    {"21", "AS", "EA6"},                                         // Balearic Islands
    {"29", "AF", "EA8"},                                         // Canary Islands
    {"32", "AF", "EA9"},                                         // Ceuta and Melilla
    {"272", "EU", "CT"},                                         // Portugal
    {"256", "AF", "CT3"},                                        // Madeira
    {"149", "EU", "CU"},                                         // Azores
    {"209", "EU", "ON OO OT"},                                   // Belgium
    {"263", "EU", "PA PB PD PE PF"},                             // Netherlands
    {"254", "EU", "LX"},                                         // Luxembourg
    {"257", "EU", "9H"},                                         // Malta
    {"221", "EU", "OZ OU OV"},                                   // Denmark
    {"284", "EU", "SM SA SK 7S 8S"},                             // Sweden
    {"266", "EU", "LA LB"},                                      // Norway
    {"224", "EU", "OH OF OG"},                                   // Finland
    {"5", "EU", "OH0"},                                          // Åland Islands
    {"167", "EU", "OJ0"},                                        // Market Reef
    {"242", "EU", "TF"},                                         // Iceland
    {"222", "EU", "OY"},                                         // Faroe Islands
    {"237", "NA", "OX"},                                         // Greenland
    {"259", "EU", "JW"},                                         // Svalbard
    {"118", "EU", "JX"},                                         // Jan Mayen
    {"269", "EU", "SP SN SQ"},                                   // Poland
    {"503", "EU", "OK OL"},                                      // Czech Republic
    {"504", "EU", "OM"},                                         // Slovak Republic
    {"239", "EU", "HA HG"},                                      // Hungary
    {"499", "EU", "S5"},                                         // Slovenia
    {"497", "EU", "9A"},                                         // Croatia
    {"501", "", "E7"},                                           // Bosnia-Herzegovina
    {"502", "", "Z3"},                                           // North Macedonia
    {"296", "EU", "YU YT"},                                      // Serbia
    {"514", "EU", "4O"},                                         // Montenegro
    {"7", "", "ZA"},                                             // Albania
    {"212", "EU", "LZ"},                                         // Bulgaria
    {"275", "EU", "YO YP"},                                      // Romania
    {"236", "EU", "SV SY"},                                      // Greece
    {"146", "EU", "LY"},                                         // Lithuania
    {"145", "EU", "YL"},                                         // Latvia
    {"52", "EU", "ES"},                                          // Estonia
    {"179", "EU", "ER"},                                         // Moldova
    {"288", "EU", "UR US UT UX"},                                // Ukraine
    {"27", "EU", "EU EV EW"},                                    // Belarus
    {"54", "EU", "UA UB R RA RU RV RK RN"},                      // European Russia
    {"291", "NA", "W K N AA AB AC AD AE AF AG AI AJ AK"},        // United States
    {"1", "NA", "VE VA VO VY"},                                  // Canada
    {"50", "NA", "XE XF"},                                       // Mexico
    {"339", "AS", "JA JE JF JH JR 7K 7N"},                       // Japan
    {"318", "AS", "BY BA BD BG"},                                // China
    {"137", "AS", "HL DS"},                                      // Korea
    {"150", "OC", "VK"},                                         // Australia
    {"170", "OC", "ZL"},                                         // New Zealand
    {"108", "SA", "PY PP PT"},                                   // Brazil
    {"112", "SA", "LU"},                                         // Argentina under the code of Chile
    {"144", "SA", ""},                                           // Uruguay
    {"462", "AF", "ZS"},                                         // South Africa
};

constexpr std::size_t longestPrefix = 3;

template <typename Visit>
constexpr void forEachPrefix(Visit visit) {
    for (const Entity& entity : entities) {
        for (std::string_view left = entity.prefixes; !left.empty();) {
            const std::string_view prefix = left.substr(0, left.find(' '));
            left.remove_prefix(std::min(left.size(), prefix.size() + 1));
            visit(prefix, entity);
        }
    }
}

/// Letters and digits have a number each, above 0; 0 is any other byte, or none.
constexpr std::size_t signCount = 37;
constexpr auto numberOfSign = [] {
    std::array<std::uint8_t, 256> numbers{};
    std::uint8_t next = 0;
    for (const char c : std::string_view("0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ")) {
        numbers[static_cast<std::uint8_t>(c)] = ++next;
    }
    return numbers;
}();

constexpr std::size_t signAt(std::string_view text, std::size_t place) {
    return place < text.size() ? numberOfSign[static_cast<std::uint8_t>(text[place])] : 0;
}

/// The row of an entity and 1; 0 for none.
using RowEnd = std::uint8_t;

/// The entities by the first signs of a call, so that one look finds the longest prefix. Where there is one
/// of three signs, the third has a table of its own.
struct FrontTable {
    struct Front {
        RowEnd end = 0;
        std::uint8_t thirds = 0;  ///< The table of the third sign; 0 for none.
    };
    std::array<Front, signCount * signCount> fronts{};
    std::array<std::array<RowEnd, signCount>, 6> thirds{};

    constexpr Front& front(std::string_view call) {
        return fronts[signAt(call, 0) * signCount + signAt(call, 1)];
    }
    constexpr RowEnd find(std::string_view call) const {
        const Front& front = fronts[signAt(call, 0) * signCount + signAt(call, 1)];
        return front.thirds == 0 ? front.end : thirds[front.thirds][signAt(call, 2)];
    }
};

constexpr auto frontTable = [] {
    FrontTable table;
    std::uint8_t lastThirds = 0;
    for (std::size_t length = 1; length <= longestPrefix; ++length) {
        forEachPrefix([&](std::string_view prefix, const Entity& entity) {
            if (prefix.size() != length) {
                return;
            }
            const auto end = static_cast<RowEnd>(&entity - entities + 1);
            FrontTable::Front& front = table.front(prefix);
            if (length == 1) {
                std::fill_n(&front, signCount, FrontTable::Front{end, 0});
            } else if (length == 2) {
                front.end = end;
            } else {
                if (front.thirds == 0) {
                    front.thirds = ++lastThirds;
                    table.thirds[front.thirds].fill(front.end);
                }
                table.thirds[front.thirds][signAt(prefix, 2)] = end;
            }
        });
    }
    return table;
}();
static_assert(std::size(entities) < 256);

/// The code by the longest prefix at the front of `part`, in which every byte is a character.
std::optional<std::string_view> codeOfPlainPart(std::string_view part) {
    const RowEnd end = frontTable.find(part);
    return end == 0 ? std::nullopt : std::optional(entities[end - 1].code);
}

/// The same for any part.
std::optional<std::string_view> codeOfPart(std::string_view part) {
    // A mark that belongs to the front would stand right behind it.
    if (text::isASCII(part.substr(0, longestPrefix + 1))) {
        return codeOfPlainPart(part);
    }
    const std::vector<std::string_view> characters = text::characters(part);
    const auto end = std::ranges::find_if(characters, [](std::string_view c) { return c.size() > 1; });
    return codeOfPlainPart(part.substr(0, static_cast<std::size_t>(end - characters.begin())));
}

/// What may stand behind a call and says nothing of the country. The WPX prefix knows more of them: here "J",
/// "B" and "PM" may be countries.
bool isSuffix(std::string_view part) {
    constexpr std::array<std::string_view, 8> suffixes = {"P", "M", "MM", "AM", "A", "QRP", "LH", "QRPP"};
    return std::ranges::find(suffixes, part) != suffixes.end();
}

constexpr std::size_t endOfCodes = 1000;

/// The number that `code` is if it is written as codes are, zero for any other text.
constexpr std::size_t numberOfCode(std::string_view code) {
    if (code.empty() || code.size() > 3 || code.front() == '0') {
        return 0;
    }
    std::size_t number = 0;
    for (const char c : code) {
        if (c < '0' || c > '9') {
            return 0;
        }
        number = number * 10 + static_cast<std::size_t>(c - '0');
    }
    return number;
}

constexpr auto continents = [] {
    std::array<std::string_view, endOfCodes> byCode;
    for (const Entity& entity : entities) {
        byCode[numberOfCode(entity.code)] = entity.continent;
    }
    return byCode;
}();

}  // namespace

std::optional<std::string_view> DXCCInfo::dxccCode(std::string_view call) {
    if (text::isUpperASCII(call) && text::trimmedOfBlanks(call).size() == call.size() &&
        call.find('/') == std::string_view::npos) {
        return codeOfPlainPart(call);
    }
    std::string buffer;
    std::string_view whole = text::trimmedOfBlanks(text::upper(call, buffer));
    std::string canonical;
    if (!text::isASCII(whole)) {
        canonical = text::canonicalKey(whole);
        whole = canonical;
    }
    bool hasPart = false;
    std::string_view shortest;
    std::optional<std::string_view> code;
    text::forEachPiece(whole, '/', [&](std::string_view part) {
        if (isSuffix(part)) {
            return;
        }
        hasPart = true;
        if (code && text::characterCount(part) >= text::characterCount(shortest)) {
            return;
        }
        if (const auto found = codeOfPart(part)) {
            code = found;
            shortest = part;
        }
    });
    return hasPart ? code : codeOfPart(whole);
}

std::optional<std::string_view> DXCCInfo::continentOfEntity(std::string_view dxcc) {
    const std::string_view continent = continents[numberOfCode(dxcc)];
    return continent.empty() ? std::nullopt : std::optional(continent);
}

std::string_view DXCCInfo::country(const ADIFRecord& record) {
    return text::trimmedOfBlanks(record.valueOrEmpty("DXCC"));
}

std::string_view DXCCInfo::cqZone(const ADIFRecord& record) {
    return text::trimmedOfBlanks(record.valueOrEmpty("CQZ"));
}

std::string_view DXCCInfo::ituZone(const ADIFRecord& record) {
    return text::trimmedOfBlanks(record.valueOrEmpty("ITUZ"));
}

std::optional<std::string> DXCCInfo::continent(const ADIFRecord& record) {
    std::string continent = text::upper(text::trimmedOfBlanks(record.valueOrEmpty("CONT")));
    if (!continent.empty()) {
        return continent;
    }
    const auto known = continentOfEntity(country(record));
    return known ? std::optional(std::string(*known)) : std::nullopt;
}

}  // namespace tallyrig
