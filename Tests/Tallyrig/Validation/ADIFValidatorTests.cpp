// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Validation/ADIFValidator.h"

#include "Tallyrig/Log/LogSupport.h"
#include "Tallyrig/Text/Text.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tallyrig {
namespace {

using testing::document;
using testing::fields;
using testing::logOf;
using Fields = testing::Pairs;
using Findings = std::vector<std::string>;

std::string shown(std::string_view text) {
    return std::string(text);
}

std::string shown(const std::vector<std::string>& list) {
    std::string text;
    for (const std::string& item : list) {
        text += (text.empty() ? "" : ",") + item;
    }
    return text;
}

std::string shown(const OtherRecordNumbers& numbers) {
    std::vector<std::string> texts;
    for (const std::size_t number : numbers) {
        texts.push_back(std::to_string(number));
    }
    return shown(texts);
}

/// A finding as "record kind payload|payload".
Findings shown(const std::vector<ValidationIssue>& issues) {
    Findings lines;
    for (const ValidationIssue& issue : issues) {
        std::string line = std::to_string(issue.recordIndex) + " " + std::string(nameOf(issue.kind()));
        std::string separator = " ";
        std::visit(
            [&](const auto& payload) {
                std::apply(
                    [&](const auto&... members) {
                        ((line += std::exchange(separator, "|") + shown(members)), ...);
                    },
                    payload.members());
            },
            issue.kind());
        lines.push_back(line);
    }
    return lines;
}

ADIFValidator everything() {
    return {ADIFValidator::usualRequiredFields(), {"call", "band", "mode"}, true, true, true, true};
}

/// What the values of one record are told, with nothing required and no duplicates looked for.
Findings findings(const Fields& record) {
    return shown(ADIFValidator({}, {}, false, true, false, true).issues(document({record})));
}

Fields qso(const std::string& call, const std::string& band = "20M", const std::string& mode = "CW") {
    return {{"CALL", call}, {"QSO_DATE", "20240115"}, {"TIME_ON", "1234"}, {"BAND", band}, {"MODE", mode}};
}

TEST(RequiredFields, AreReportedWhereTheyAreMissingOrBlank) {
    EXPECT_EQ(shown(everything().issues(document({}))), Findings());
    EXPECT_EQ(shown(everything().issues(document({{}}))),
              (Findings{"0 missingRequiredField CALL", "0 missingRequiredField QSO_DATE",
                        "0 missingRequiredField TIME_ON", "0 missingRequiredField BAND",
                        "0 missingRequiredField MODE"}));
    Fields blankBand = qso("DL1ABC", " \t\r\n\xC2\x85\xE2\x80\xA8");
    EXPECT_EQ(shown(everything().issues(document({qso("DL1ABC"), blankBand}))),
              (Findings{"1 missingRequiredField BAND"}));
    EXPECT_EQ(shown(ADIFValidator({"name"}, {}, true, false, false, false).issues(document({qso("DL1ABC")}))),
              (Findings{"0 missingRequiredField NAME"}));
}

TEST(FieldNames, AreReportedWhereTheStandardDoesNotKnowThem) {
    EXPECT_EQ(findings({{"FOO", "x"}}), (Findings{"0 unknownField FOO"}));
    for (const char* const name : {"APP_X_Y", "USERDEF3", "APP_", "CREDIT_GRANTED", "ADIF_VER"}) {
        EXPECT_EQ(findings({{name, "x"}}), Findings()) << name;
    }
    EXPECT_EQ(findings({{"FOO", ""}, {"BAR", " \n"}}), Findings()) << "an empty field has no finding at all";

    const ADIFDocument log = document({{{"FOO", "x"}}});
    EXPECT_EQ(shown(ADIFValidator({}, {}, true, true, true, false).issues(log)), (Findings{}));
    EXPECT_EQ(shown(ADIFValidator({}, {"CALL"}, true, false, true, true).issues(log)), Findings())
        << "names are looked at only where values are";
}

TEST(FieldNames, CountAsTheyAreStored) {
    ADIFField field("CALL", "x");
    field.name = "app_x";
    ADIFField call("CALL", "??");
    call.name = "call";
    const ADIFRecord record(std::vector<ADIFField>{field, call});
    const ADIFDocument log("", {}, ADIFRecordList({record}));
    EXPECT_EQ(shown(ADIFValidator({}, {}, false, true, false, true).issues(log)),
              (Findings{"0 unknownField app_x", "0 unknownField call"}));
}

TEST(Values, AreHeldAgainstTheirDataType) {
    for (const auto& [field, value] :
         fields("GRIDSQUARE_EXT=JO62 | VUCC_GRIDS=JO62, jo61 ,\tJO50, | VUCC_GRIDS=,, | TX_PWR= 1e3 \t | "
                "AGE=-0x1F.8p1 | A_INDEX=nan | CQZ=0 | CQZ=٣ | SRX=-5 | SRX=+5 | SWL=y | SWL=N | "
                "CREDIT_GRANTED=anything | LAT=north | SOTA_REF=?")) {
        EXPECT_EQ(findings({{field, value}}), Findings()) << field << " " << value;
    }
    const std::tuple<const char*, const char*, const char*> bad[] = {
        {"QSLSDATE", " 2024-01-15 ", "0 invalidDate QSLSDATE|2024-01-15"},
        {"TIME_OFF", "2400", "0 invalidTime TIME_OFF|2400"},
        {"GRIDSQUARE_EXT", "12ab", "0 invalidGridsquare GRIDSQUARE_EXT|12ab"},
        {"MY_GRIDSQUARE", "JS62", "0 invalidGridsquare MY_GRIDSQUARE|JS62"},
        {"VUCC_GRIDS", "JO62,XX,YY", "0 invalidGridsquare VUCC_GRIDS|JO62,XX,YY"},
        {"VUCC_GRIDS", "JO62, ,JO61", "0 invalidGridsquare VUCC_GRIDS|JO62, ,JO61"},
        {"FREQ", "14,074", "0 nonNumericFrequency FREQ|14,074"},
        {"FREQ_RX", "abc", "0 nonNumericFrequency FREQ_RX|abc"},
        {"TX_PWR", "100 W", "0 invalidValue TX_PWR|100 W|Number"},
        {"CQZ", "-14", "0 invalidValue CQZ|-14|PositiveInteger"},
        {"STX", "--5", "0 invalidValue STX|--5|Integer"},
        {"STX", "-", "0 invalidValue STX|-|Integer"},
        {"STX", "1.0", "0 invalidValue STX|1.0|Integer"},
        {"SWL", "YES", "0 invalidValue SWL|YES|Boolean"}};
    for (const auto& [field, value, finding] : bad) {
        EXPECT_EQ(findings({{field, value}}), (Findings{finding})) << field << " " << value;
    }
}

TEST(Values, AreHeldAgainstTheirEnumeration) {
    for (const auto& [field, value] :
         fields("BAND= 20m\t | MODE=ft8 | SUBMODE=XYZ | CONTEST_ID=XYZ | STATE=XX | DXCC=230 | "
                "QSL_SENT=q | QSL_RCVD_VIA=e | QSO_COMPLETE=? | ARRL_SECT=O\u212A")) {
        EXPECT_EQ(findings({{field, value}}), Findings()) << field << " " << value;
    }
    const std::tuple<const char*, const char*, const char*> bad[] = {
        {"BAND", " 20 m ", "0 unknownBand 20 m"},
        {"BAND_RX", "5X", "0 unknownBand 5X"},
        {"MODE", "Morse", "0 unknownMode Morse"},
        {"QSL_RCVD", "Z", "0 invalidEnumeration QSL_RCVD|Z"},
        {"QSL_RCVD", "q", "0 invalidEnumeration QSL_RCVD|q"},
        {"MY_DXCC", "073", "0 invalidEnumeration MY_DXCC|073"},
        {"PROP_MODE", "Äs", "0 invalidEnumeration PROP_MODE|Äs"}};
    for (const auto& [field, value, finding] : bad) {
        EXPECT_EQ(findings({{field, value}}), (Findings{finding})) << field << " " << value;
    }
}

TEST(Frequency, LiesInTheBandWithBothEdges) {
    const std::tuple<const char*, const char*, Findings> cases[] = {
        {"14.35", "20M", {}},
        {"14", "20m", {}},
        {" 14.3501", " 20m ", {"0 frequencyOutsideBand 14.3501|20m"}},
        {"13.9999", "20M", {"0 frequencyOutsideBand 13.9999|20M"}},
        {"1e1", "30M", {"0 frequencyOutsideBand 1e1|30M"}},
        {"inf", "30M", {"0 frequencyOutsideBand inf|30M"}},
        {"nan", "30M", {}},
        {"14.074", "", {}},
        {"14.074", "21M", {"0 unknownBand 21M"}},
        {"14,074", "40M", {"0 nonNumericFrequency FREQ|14,074"}}};
    for (const auto& [frequency, band, expected] : cases) {
        EXPECT_EQ(findings({{"FREQ", frequency}, {"BAND", band}}), expected) << frequency << " " << band;
    }
    EXPECT_EQ(findings({{"FREQ_RX", "7.1"}, {"BAND_RX", "20M"}}), Findings());
}

/// That a question about a text is answered with yes for the first texts, parted by bars, and with no
/// for the others.
void expectJudged(bool (*isGood)(std::string_view), std::string_view good, std::string_view others) {
    for (const std::string_view text : text::split(good, '|')) {
        EXPECT_TRUE(isGood(text)) << text;
    }
    for (const std::string_view text : text::split(others, '|')) {
        EXPECT_FALSE(isGood(text)) << text;
    }
}

TEST(Dates, AreDaysOfTheCalendar) {
    expectJudged(ADIFValidator::isValidDate, "19300101|21001231|20240229|20000229|20240731",
                 "19291231|21010101|20240230|20230229|21000229|20240001|20241301|20240100|20240431|"
                 "2024-01-15|2024011|202401150|2024011x||２０２４０１１５|2024011٥");
}

TEST(Times, AreHoursAndMinutesAndPerhapsSeconds) {
    expectJudged(ADIFValidator::isValidTime, "0000|2359|235959|000000",
                 "2400|235960|1260|123|12345|1234567|12:34|-100||１２３４|12٣٤");
}

TEST(Locators, HaveOneToFourPairs) {
    expectJudged(
        ADIFValidator::isValidGridsquare, "JO|jo62|JO62qm|JO62QM38|AA00AA00|RR99XX99|JO٦٢",
        "|J|JO6|JS62|SA00|JO62Y|JO62YY|JO62AY|JOAA|JO62QMAB|JO62QM38AA|JO 2|JS٦٢|JO٦٢AY|J\u00D6|JO6\r\n");
}

TEST(CallSigns, ArePlausibleWithLetterAndDigit) {
    expectJudged(ADIFValidator::isPlausibleCallsign, "DL1ABC/P|dl1abc|A1A|3DA0RS|EA8/DL1ABC/P|Ä1Ö|R1ЖЖ|ß1",
                 "|DL|A1|ABCDEF|123|1/1|DL1-ABC|DL1 ABC|EA8/DL1ABC/PM|DL1ÄÄÄÄÄÄÄÄÄÄ|Ä1€|DL1\r\nA");
    EXPECT_EQ(findings({{"CALL", " dl "}}), (Findings{"0 implausibleCallsign dl"}));
    EXPECT_EQ(findings({{"CALL", " "}}), Findings());
}

TEST(Duplicates, NameTheOtherRecords) {
    const ADIFDocument log = document({qso("dl1abc "), qso("DL2XYZ"), qso("DL1ABC", "20m", "cw"),
                                       qso("DL1ABC", "40M"), qso("DL2XYZ"), qso("DL1ABC")});
    const ADIFValidator validator = everything();
    EXPECT_EQ(validator.duplicateGroups(log), (std::vector<std::vector<std::size_t>>{{0, 2, 5}, {1, 4}}));
    EXPECT_EQ(shown(validator.issues(log)),
              (Findings{"0 duplicate CALL,BAND,MODE|3,6", "1 duplicate CALL,BAND,MODE|5",
                        "2 duplicate CALL,BAND,MODE|1,6", "4 duplicate CALL,BAND,MODE|2",
                        "5 duplicate CALL,BAND,MODE|1,3"}));
    ADIFValidator without = validator;
    without.checksDuplicates = false;
    EXPECT_TRUE(without.issues(log).empty());
    EXPECT_EQ(without.duplicateGroups(log).size(), 2U) << "the groups do not ask for the switch";
}

TEST(Duplicates, NeedEveryPartOfTheKey) {
    using Groups = std::vector<std::vector<std::size_t>>;
    const auto groups = [](const ADIFDocument& log, std::vector<std::string> key) {
        return ADIFValidator({}, std::move(key), false, false, true, false).duplicateGroups(log);
    };
    const ADIFDocument log =
        document({qso("DL1ABC", ""), qso("DL1ABC", " "), {{"CALL", "DL1ABC"}}, qso("DL1ABC")});
    EXPECT_EQ(groups(log, {"CALL", "BAND", "MODE"}), Groups());
    EXPECT_EQ(groups(log, {"CALL", "MODE"}), (Groups{{0, 1, 3}}));
    EXPECT_EQ(groups(log, {"CALL", "CALL"}), (Groups{{0, 1, 2, 3}}));
    EXPECT_EQ(groups(log, {}), (Groups{{0, 1, 2, 3}})) << "without key fields all records agree";
    EXPECT_EQ(groups(logOf({"CALL=A | BAND=BC", "CALL=AB | BAND=C"}), {"CALL", "BAND"}), Groups());
    EXPECT_EQ(groups(logOf({"CALL=DL1ä", "CALL=dl1A\u0308", "CALL=DL1A"}), {"CALL"}), (Groups{{0, 1}}));
}

TEST(Duplicates, OfAWholeLogShareTheirList) {
    const std::size_t count = 20000;
    const auto issues = everything().issues(document(std::vector<Fields>(count, qso("DL1ABC"))));
    ASSERT_EQ(issues.size(), count);
    EXPECT_EQ(std::get<finding::Duplicate>(issues[7].kind()).otherRecordNumbers.size(), count - 1);
}

TEST(Findings, StandByRecordWithErrorsFirst) {
    const ADIFValidator validator({"NAME", "CALL", "QTH"}, {"CALL"}, true, true, true, true);
    const ADIFDocument log =
        logOf({"GRIDSQUARE=ZZ | MODE=X | FREQ=7 | BAND=20M | CALL=? | QSO_DATE=1 | TIME_ON=1 | NAME=",
               "CALL=? | NAME=x | QTH=y"});
    EXPECT_EQ(
        shown(validator.issues(log)),
        (Findings{"0 missingRequiredField NAME", "0 missingRequiredField QTH", "0 invalidDate QSO_DATE|1",
                  "0 invalidTime TIME_ON|1", "0 invalidGridsquare GRIDSQUARE|ZZ", "0 unknownMode X",
                  "0 implausibleCallsign ?", "0 frequencyOutsideBand 7|20M", "0 duplicate CALL|2",
                  "1 implausibleCallsign ?", "1 duplicate CALL|1"}));
}

TEST(Findings, AreTheSameForRecordsFromManySources) {
    // Each of these records brings its own table of names; some share one.
    std::vector<Fields> records;
    for (int round = 0; round < 100; ++round) {
        records.push_back(fields(std::string(round % 2 == 1 ? "NOTES=x | " : "") + "CALL=DL" +
                                 std::to_string(round) + " | MODE=" + (round == 70 ? "X" : "CW")));
    }
    ADIFDocument log = document(records);
    log.records().modify(3, [](ADIFRecord& record) { record.set("BAND", "1X"); });
    EXPECT_EQ(shown(ADIFValidator({"CALL"}, {"CALL"}, true, true, true, true).issues(log)),
              (Findings{"3 unknownBand 1X", "70 unknownMode X"}));
}

TEST(Settings, AreStoredInUpperCaseAndMayBeAssignedLater) {
    ADIFValidator validator({"qth"}, {"call"}, true, true, true, true);
    EXPECT_EQ(validator.requiredFields, (std::vector<std::string>{"QTH"}));
    EXPECT_EQ(validator.duplicateKeyFields, (std::vector<std::string>{"CALL"}));
    validator.requiredFields = {"rig"};
    EXPECT_EQ(shown(validator.issues(document({{{"RIG", "x"}}, {}}))),
              (Findings{"1 missingRequiredField rig"}));
}

}  // namespace
}  // namespace tallyrig
