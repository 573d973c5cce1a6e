// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Outdoor/OutdoorConformance.h"

#include "Tallyrig/Log/LogSupport.h"
#include "Tallyrig/Outdoor/OutdoorCheck.h"
#include "Tallyrig/Outdoor/SOTAConformance.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace tallyrig {
namespace {

using testing::logOf;
using Kinds = std::vector<ValidationKind>;

/// What is said of a single QSO.
template <typename Conformance>
Kinds findings(const Conformance& conformance, std::string_view record) {
    Kinds kinds;
    for (const ValidationIssue& issue : conformance.issues(logOf({record}))) {
        kinds.push_back(issue.kind());
    }
    return kinds;
}

TEST(OutdoorConformance, AsksForACallOfTheStation) {
    const OutdoorConformance pota{OutdoorProgram::pota};
    const Kinds missing = {finding::OutdoorMissingField{"POTA", "STATION_CALLSIGN/OPERATOR"}};
    EXPECT_EQ(findings(pota, ""), missing);
    EXPECT_EQ(findings(pota, "STATION_CALLSIGN= \n | OPERATOR=\t"), missing);
    EXPECT_EQ(findings(pota, "STATION_CALLSIGN= | OPERATOR=DL1ABC"), Kinds());
    EXPECT_EQ(findings(pota, "STATION_CALLSIGN=DL1ABC"), Kinds()) << "without a reference";
}

TEST(OutdoorConformance, NamesReferencesAndProgramsThatAreOfAnotherKind) {
    const OutdoorConformance bota{OutdoorProgram::bota};
    EXPECT_EQ(findings(bota, "OPERATOR=A | MY_SIG= wwbota | MY_SIG_INFO=b/dl-1"), Kinds());
    EXPECT_EQ(findings(bota, "OPERATOR=A | MY_SIG= bota | MY_SIG_INFO=B/DL-1, dl-2 ,,DL-3"),
              (Kinds{finding::OutdoorInvalidReference{"BOTA", "MY_SIG_INFO", "dl-2"},
                     finding::OutdoorInvalidReference{"BOTA", "MY_SIG_INFO", "DL-3"},
                     finding::OutdoorWrongSig{"BOTA", "BOTA"}}));
    EXPECT_EQ(findings(OutdoorConformance{OutdoorProgram::sota}, "MY_SIG_INFO=?"), Kinds());
}

TEST(OutdoorConformance, SaysOfEachRecordWhatIsTrueOfIt) {
    const auto issues = OutdoorConformance{OutdoorProgram::pota}.issues(logOf(
        {"OPERATOR=A | MY_SIG_INFO=X", "OPERATOR=A | MY_SIG_INFO=X", "OPERATOR=A",
         "OPERATOR=A | MY_SIG_INFO=K-0001", "OPERATOR=A | MY_SIG_INFO=Y", "OPERATOR=A | MY_SIG_INFO=X"}));
    std::vector<std::pair<std::size_t, std::string>> said;
    for (const ValidationIssue& issue : issues) {
        said.emplace_back(issue.recordIndex, std::get<finding::OutdoorInvalidReference>(issue.kind()).value);
    }
    EXPECT_EQ(said,
              (std::vector<std::pair<std::size_t, std::string>>{{0, "X"}, {1, "X"}, {4, "Y"}, {5, "X"}}));
}

TEST(SOTAConformance, AsksAnActivatorForSummitsAndAChaserForNone) {
    const SOTAConformance activator{SOTARole::activator};
    const finding::OutdoorMissingField noCall{"SOTA", "STATION_CALLSIGN"};
    EXPECT_EQ(findings(activator, "SOTA_REF=HB/BE-001"),
              (Kinds{noCall, finding::OutdoorMissingField{"SOTA", "MY_SOTA_REF"}}));
    EXPECT_EQ(findings(activator, "OPERATOR=A | MY_SOTA_REF=HB/BE-001, hb/be-2\n | SOTA_REF=?"), Kinds());
    EXPECT_EQ(findings(activator, "OPERATOR=A | MY_SOTA_REF=HB/BE-001,HB-2"),
              (Kinds{finding::OutdoorInvalidReference{"SOTA", "MY_SOTA_REF", "HB-2"}}));
    const SOTAConformance chaser{SOTARole::chaser};
    EXPECT_EQ(findings(chaser, "OPERATOR=A | MY_SOTA_REF=?"), Kinds());
    EXPECT_EQ(findings(chaser, "SOTA_REF= HB/BE-001\n"), Kinds{noCall});
    EXPECT_EQ(findings(chaser, "OPERATOR=A | SOTA_REF=HB/BE-001,HB/BE-002"),
              (Kinds{finding::OutdoorInvalidReference{"SOTA", "SOTA_REF", "HB/BE-001,HB/BE-002"}}));
}

TEST(OutdoorCheck, JoinsWhatIsWrongWithALogAndWithItsPlaces) {
    const std::string_view good = "CALL=DL1ABC | QSO_DATE=20240501 | TIME_ON=1200 | MODE=CW | BAND=20m";
    const ADIFDocument log = testing::logOf(
        {std::string(good) + " | OPERATOR=A | MY_SIG_INFO=1", std::string(good) + " | OPERATOR=A",
         "CALL=DL1ABC | QSO_DATE=20240501 | TIME_ON=99 | MODE=? | BAND=20m | FOO=x | MY_SIG=SOTA"});
    std::string said;
    for (const ValidationIssue& issue : outdoorIssues(log, OutdoorProgram::pota, SOTARole::activator)) {
        said += std::to_string(issue.recordIndex) + " " + std::string(nameOf(issue.kind())) + "\n";
    }
    EXPECT_EQ(said,
              "0 outdoorInvalidReference\n"
              "2 invalidTime\n2 outdoorMissingField\n2 unknownMode\n2 outdoorWrongSig\n")
        << "neither duplicates nor unknown fields";
    EXPECT_EQ(outdoorIssues(log, OutdoorProgram::sota, SOTARole::chaser).size(), 3U);
}

}  // namespace
}  // namespace tallyrig
