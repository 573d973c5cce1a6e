// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

/// The bands of ADIF by their names, for the tables that say something about bands: their edges, what a
/// contest format calls them. Which edges hold is for each table to say: a contest keeps within narrower
/// ones than ADIF.
namespace tallyrig::band {

inline constexpr std::string_view m2190 = "2190M";
inline constexpr std::string_view m630 = "630M";
inline constexpr std::string_view m560 = "560M";
inline constexpr std::string_view m160 = "160M";
inline constexpr std::string_view m80 = "80M";
inline constexpr std::string_view m60 = "60M";
inline constexpr std::string_view m40 = "40M";
inline constexpr std::string_view m30 = "30M";
inline constexpr std::string_view m20 = "20M";
inline constexpr std::string_view m17 = "17M";
inline constexpr std::string_view m15 = "15M";
inline constexpr std::string_view m12 = "12M";
inline constexpr std::string_view m10 = "10M";
inline constexpr std::string_view m8 = "8M";
inline constexpr std::string_view m6 = "6M";
inline constexpr std::string_view m5 = "5M";
inline constexpr std::string_view m4 = "4M";
inline constexpr std::string_view m2 = "2M";
inline constexpr std::string_view m1And25 = "1.25M";
inline constexpr std::string_view cm70 = "70CM";
inline constexpr std::string_view cm33 = "33CM";
inline constexpr std::string_view cm23 = "23CM";
inline constexpr std::string_view cm13 = "13CM";
inline constexpr std::string_view cm9 = "9CM";
inline constexpr std::string_view cm6 = "6CM";
inline constexpr std::string_view cm3 = "3CM";
inline constexpr std::string_view cm1And25 = "1.25CM";
inline constexpr std::string_view mm6 = "6MM";
inline constexpr std::string_view mm4 = "4MM";
inline constexpr std::string_view mm2And5 = "2.5MM";
inline constexpr std::string_view mm2 = "2MM";
inline constexpr std::string_view mm1 = "1MM";
inline constexpr std::string_view submm = "SUBMM";

}  // namespace tallyrig::band
