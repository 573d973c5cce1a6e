// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Validation/FindingPlace.h"

#include "Tallyrig/Log/LogSupport.h"

#include <gtest/gtest.h>

namespace tallyrig {
namespace {

TEST(FindingPlace, IsTheFieldThatHoldsWhatWasFound) {
    const ADIFRecord qso = testing::record(
        {{"CALL", "DL1ABC"}, {"BAND", "20m"}, {"BAND_RX", " 21m "}, {"QSO_DATE", "1"}, {"QSO_DATE", "2"}});
    const std::tuple<ValidationKind, std::string, std::optional<std::size_t>> cases[] = {
        {finding::UnknownBand{"20m"}, "BAND", 1},
        {finding::UnknownBand{"21m"}, "BAND_RX", 2},
        {finding::InvalidDate{"QSO_DATE", "2"}, "QSO_DATE", 4},
        {finding::InvalidDate{"QSO_DATE", "edited since"}, "QSO_DATE", 3},
        {finding::Duplicate{{"CALL", "BAND"}, {2}}, "CALL", 0},
        {finding::MissingRequiredField{"MODE"}, "MODE", std::nullopt},
        {finding::OutdoorMissingField{"POTA", "STATION_CALLSIGN/OPERATOR"}, "STATION_CALLSIGN", std::nullopt},
    };
    for (const auto& [kind, field, position] : cases) {
        EXPECT_EQ(placeOf(kind, qso).field, field) << nameOf(kind);
        EXPECT_EQ(placeOf(kind, qso).position, position) << nameOf(kind);
    }
}

}  // namespace
}  // namespace tallyrig
