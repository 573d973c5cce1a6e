#include "Tallyrig/Validation/ADIFSpec317.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

namespace tallyrig {
namespace {

std::vector<std::string> sortedNames(const auto& table) {
    std::vector<std::string> names;
    for (const auto& row : table) {
        names.emplace_back(row.name);
    }
    std::ranges::sort(names);
    return names;
}

TEST(FieldTable, HoldsEveryFieldOfTheStandard) {
    std::map<std::string, int> rowsByType;
    for (const auto& row : ADIFSpec::fields()) {
        ++rowsByType[std::string(row.value.dataType)];
    }
    const std::map<std::string, int> expected = {{"MultilineString", 5},
                                                 {"IntlMultilineString", 4},
                                                 {"String", 48},
                                                 {"Number", 12},
                                                 {"Enumeration", 37},
                                                 {"SponsoredAwardList", 2},
                                                 {"Date", 16},
                                                 {"SecondaryAdministrativeSubdivisionListAlt", 2},
                                                 {"IntlString", 15},
                                                 {"PositiveInteger", 11},
                                                 {"CreditList AwardList (import-only)", 2},
                                                 {"Boolean", 4},
                                                 {"GridSquare", 2},
                                                 {"GridSquareExt", 2},
                                                 {"IOTARefNo", 2},
                                                 {"Integer", 6},
                                                 {"Location", 4},
                                                 {"POTARefList", 2},
                                                 {"SOTARef", 2},
                                                 {"SecondarySubdivisionList", 2},
                                                 {"GridSquareList", 2},
                                                 {"WWFFRef", 2},
                                                 {"Time", 2}};
    EXPECT_EQ(rowsByType, expected);
    EXPECT_EQ(ADIFSpec::fields().size(), 186U);
    EXPECT_EQ(ADIFSpec::version, "3.1.7");
}

TEST(FieldTable, NamesTheEnumerationOfAField) {
    std::map<std::string, std::string> fieldsByKey;
    std::string enumeratedWithoutKey;
    for (const auto& row : ADIFSpec::fields()) {
        if (row.value.enumKey) {
            (fieldsByKey[std::string(*row.value.enumKey)] += ' ') += row.name;
        } else if (row.value.dataType == "Enumeration") {
            (enumeratedWithoutKey += ' ') += row.name;
        }
    }
    std::string found;
    for (const auto& [key, names] : fieldsByKey) {
        found += key + ':' + names + '\n';
    }
    EXPECT_EQ(found,
              "ANT_PATH: ANT_PATH\n"
              "ARRL_SECTION: ARRL_SECT MY_ARRL_SECT\n"
              "BAND: BAND BAND_RX\n"
              "CONT: CONT\n"
              "CONTEST_ID: CONTEST_ID\n"
              "DXCC: DXCC MY_DXCC\n"
              "MODE: MODE\n"
              "PROP_MODE: PROP_MODE\n"
              "QSL_RCVD: DCL_QSL_RCVD EQSL_QSL_RCVD LOTW_QSL_RCVD QSL_RCVD\n"
              "QSL_SENT: DCL_QSL_SENT EQSL_QSL_SENT LOTW_QSL_SENT QSL_SENT\n"
              "QSL_VIA: QSL_RCVD_VIA QSL_SENT_VIA\n"
              "QSO_COMPLETE: QSO_COMPLETE\n"
              "QSO_UPLOAD_STATUS: CLUBLOG_QSO_UPLOAD_STATUS HAMLOGEU_QSO_UPLOAD_STATUS "
              "HAMQTH_QSO_UPLOAD_STATUS HRDLOG_QSO_UPLOAD_STATUS QRZCOM_QSO_UPLOAD_STATUS\n"
              "SUBMODE: SUBMODE\n");
    EXPECT_EQ(enumeratedWithoutKey,
              " CNTY DARC_DOK EQSL_AG MORSE_KEY_TYPE MY_CNTY MY_DARC_DOK MY_MORSE_KEY_TYPE MY_STATE "
              "QRZCOM_QSO_DOWNLOAD_STATUS REGION STATE");
    EXPECT_EQ(ADIFSpec::fields().find("CONTEST_ID")->dataType, "String");
    EXPECT_EQ(ADIFSpec::fields().find("SUBMODE")->dataType, "String");
}

TEST(FieldTable, IsLookedUpExactly) {
    EXPECT_TRUE(ADIFSpec::fields().contains("CALL"));
    EXPECT_TRUE(ADIFSpec::fields().contains("ADIF_VER"));
    EXPECT_TRUE(
        ADIFSpec::fields().contains("S\xE2\x84\xAA"
                                    "CC"))
        << "KELVIN SIGN is canonically a K";
    for (const char* const name : {"call", "Call", "", "CALL ", "APP_X", "USERDEF1", "CALLÄ"}) {
        EXPECT_FALSE(ADIFSpec::fields().contains(name)) << name;
        EXPECT_EQ(ADIFSpec::fields().find(name), nullptr) << name;
    }
}

TEST(Enumerations, HaveTheirSizes) {
    const std::map<std::string, std::size_t> sizes = {
        {"ANT_PATH", 4}, {"CONT", 7},      {"PROP_MODE", 20},        {"QSL_MEDIUM", 3}, {"QSL_RCVD", 5},
        {"QSL_SENT", 5}, {"QSL_VIA", 4},   {"QSO_COMPLETE", 4},      {"BAND", 33},      {"ARRL_SECTION", 90},
        {"MODE", 91},    {"SUBMODE", 187}, {"QSO_UPLOAD_STATUS", 3}, {"DXCC", 403},     {"CONTEST_ID", 256},
    };
    std::map<std::string, std::size_t> found;
    for (const auto& row : ADIFSpec::enumerations()) {
        std::vector<std::string_view> values(row.value.begin(), row.value.end());
        std::ranges::sort(values);
        EXPECT_EQ(std::ranges::adjacent_find(values), values.end()) << row.name << " has a value twice";
        found[std::string(row.name)] = values.size();
    }
    EXPECT_EQ(found, sizes);
}

TEST(Enumerations, AdmitTheirValuesOnly) {
    struct Case {
        const char* key;
        std::vector<const char*> members;
        std::vector<const char*> others;
    };
    const Case cases[] = {
        {"MODE", {"FT8", "PSK31", "THRBX", "CW"}, {"ft8", "FT4", "USB", ""}},
        {"SUBMODE", {"FT4", "VARA FM 1200", "OLIVIA 4/125", "JT9E FAST"}, {"FT8", "VARA FM"}},
        {"CONTEST_ID", {"EU SPRINT", "RSGB-21/28-CW", "YUDXC", "070-160M-SPRINT"}, {"XYZ"}},
        {"ARRL_SECTION", {"AL", "WY", "TER", "O\xE2\x84\xAA"}, {"XX"}},
        {"QSL_RCVD", {"V"}, {"Q"}},
        {"QSL_SENT", {"Q"}, {"V"}},
        {"QSO_COMPLETE", {"?", "NIL"}, {"!"}},
        {"QSL_MEDIUM", {"CARD", "EQSL", "LOTW"}, {"B"}},
        {"BAND", {"20M", "1.25CM", "SUBMM"}, {"20m", "20", "11M"}},
        {"DXCC",
         {"0", "72", "74", "155", "157", "289", "309", "312", "345", "420", "499", "501", "522"},
         {"73", "83", "156", "290", "300", "310", "313", "346", "500", "523", "00", "01", "-1"}},
    };
    for (const Case& c : cases) {
        const SpecSet* const values = ADIFSpec::enumerations().find(c.key);
        ASSERT_NE(values, nullptr) << c.key;
        for (const char* const value : c.members) {
            EXPECT_TRUE(values->contains(value)) << c.key << " " << value;
        }
        for (const char* const value : c.others) {
            EXPECT_FALSE(values->contains(value)) << c.key << " " << value;
        }
    }
    EXPECT_EQ(ADIFSpec::enumerations().find("mode"), nullptr);
}

TEST(BandTable, AscendsWithGapsBetweenTheBands) {
    const auto& bands = ADIFSpec::bandFrequencies();
    EXPECT_EQ(bands.size(), 33U);
    EXPECT_EQ(bands.begin()->name, "2190M");
    EXPECT_EQ((bands.end() - 1)->name, "SUBMM");
    double upper = 0;
    for (const auto& row : bands) {
        EXPECT_LT(upper, row.value.lower) << row.name;
        EXPECT_LT(row.value.lower, row.value.upper) << row.name;
        upper = row.value.upper;
    }
    const SpecSet& names = *ADIFSpec::enumerations().find("BAND");
    EXPECT_TRUE(std::ranges::all_of(bands, [&](const auto& row) { return names.contains(row.name); }));
    EXPECT_EQ(sortedNames(bands).size(), names.size());
}

TEST(BandTable, TellsTheBandOfAFrequency) {
    const auto bandOf = [](double megahertz) -> std::string {
        for (const auto& row : ADIFSpec::bandFrequencies()) {
            if (row.value.contains(megahertz)) {
                return std::string(row.name);
            }
        }
        return "";
    };
    const std::pair<double, const char*> cases[] = {
        {0.1357, "2190M"}, {0.479, "630M"},    {0.4791, ""},     {1.8, "160M"},     {2.0, "160M"},
        {5.06, "60M"},     {5.45, "60M"},      {14.35, "20M"},   {14.3501, ""},     {18.0679, ""},
        {53.9999, "6M"},   {54.0, "6M"},       {54.0000005, ""}, {54.000001, "5M"}, {69.9, "5M"},
        {69.95, ""},       {70, "4M"},         {149, ""},        {1300, "23CM"},    {24250, "1.25CM"},
        {299999, ""},      {7500000, "SUBMM"}, {7500000.1, ""},
    };
    for (const auto& [frequency, band] : cases) {
        EXPECT_EQ(bandOf(frequency), band) << frequency;
    }
}

}  // namespace
}  // namespace tallyrig
