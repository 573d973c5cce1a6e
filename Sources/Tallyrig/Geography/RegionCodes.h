// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string_view>

/// Codes of regions and entities, as contests count them.
namespace tallyrig {

// Packed by hand, so that the eye can follow them along a list.
// clang-format off

/// The 50 states and the capital of the United States, the 13 provinces and territories of Canada.
inline constexpr std::array<std::string_view, 64> usStatesAndVEProvinces = {
    "AL", "AK", "AZ", "AR", "CA", "CO", "CT", "DE", "FL", "GA", "HI", "ID", "IL", "IN", "IA", "KS", "KY",
    "LA", "ME", "MD", "MA", "MI", "MN", "MS", "MO", "MT", "NE", "NV", "NH", "NJ", "NM", "NY", "NC", "ND",
    "OH", "OK", "OR", "PA", "RI", "SC", "SD", "TN", "TX", "UT", "VT", "VA", "WA", "WV", "WI", "WY", "DC",
    "NS", "QC", "ON", "MB", "SK", "AB", "BC", "NB", "NL", "PE", "NT", "YT", "NU"};

inline constexpr std::array<std::string_view, 26> swissCantons = {
    "AG", "AI", "AR", "BE", "BL", "BS", "FR", "GE", "GL", "GR", "JU", "LU", "NE",
    "NW", "OW", "SG", "SH", "SO", "SZ", "TG", "TI", "UR", "VD", "VS", "ZG", "ZH"};

/// Finland, Sweden, Norway, Denmark, Iceland, Faroe Islands, Greenland, Åland Islands, Svalbard, Jan Mayen,
/// Market Reef.
inline constexpr std::array<std::string_view, 11> scandinavianDXCC = {
    "224", "284", "266", "221", "242", "222", "237", "5", "259", "118", "167"};

/// Japan, Ogasawara, Minami Torishima.
inline constexpr std::array<std::string_view, 3> japaneseDXCC = {"339", "192", "177"};

/// European Russia, Asiatic Russia, Kaliningrad.
inline constexpr std::array<std::string_view, 3> russianDXCC = {"54", "15", "126"};

// clang-format on

}  // namespace tallyrig
