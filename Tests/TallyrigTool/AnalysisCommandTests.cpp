// SPDX-License-Identifier: GPL-3.0-or-later
#include "TallyrigTool/ToolFixture.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <string>
#include <tuple>
#include <utility>

namespace {

using namespace tallyrig::tool::testing;

/// A log of `count` QSOs, `step` days apart as the digits of a date count them.
std::string logOfDays(int first, int count, int step = 1) {
    std::string log;
    for (int number = 0; number < count; ++number) {
        log += "<QSO_DATE:8>" + std::to_string(first + number * step) + "<EOR>";
    }
    return log;
}

using Compare = Tool;

TEST_F(Compare, GivesRowsHeaderAndCountsAsJson) {
    write("right", "<A:1>1<EOH><CALL:1>b<NAME:4>\"Ü\"<EOR><CALL:1>C<EOR><CALL:1>D<EOR>");
    const Ran ran = run("tallyrig compare --json --key call - right",
                        "<B:1>2<EOH><CALL:1>A<EOR><CALL:1>B<NAME:1>x<EOR><CALL:1>C<EOR>");
    EXPECT_EQ(ran.status, 1);
    EXPECT_EQ(ran.output, R"({"columns":["CALL","NAME"],"rows":[
{"left":0,"right":null,"status":"onlyLeft","differingFields":[]},
{"left":1,"right":0,"status":"differs","differingFields":["CALL","NAME"]},
{"left":2,"right":1,"status":"equal","differingFields":[]},
{"left":null,"right":2,"status":"onlyRight","differingFields":[]}
],"headerDiffs":[{"field":"B","left":"2","right":null},{"field":"A","left":null,"right":"1"}],)"
                          R"("counts":{"equal":1,"differs":1,"onlyLeft":1,"onlyRight":1}})"
                          "\n");
}

TEST_F(Compare, EndsAsDiffDoes) {
    write("log", "<CALL:1>A<BAND:3>20m<EOR>");
    write("header", "<X:1>1<EOH><CALL:1>A<BAND:3>20m<EOR>");
    write("other", "<BAND:3>20m<CALL:1>B<EOR>");
    const std::pair<std::string, int> cases[] = {
        {"log log", 0},       {"log header", 1}, {"log other", 1}, {"--key band,,\\ Mode log other", 1},
        {"log fehlt.adi", 2}, {"log", 2},        {"- -", 2}};
    for (const auto& [arguments, status] : cases) {
        EXPECT_EQ(run("tallyrig compare " + arguments).status, status) << arguments;
    }
}

TEST_F(Compare, PairsByTheKeyAskedFor) {
    write("left", "<CALL:1>A<BAND:3>20m<EOR><CALL:1>B<BAND:3>40m<EOR>");
    write("right", "<CALL:1>A<BAND:3>40m<EOR><CALL:1>B<BAND:3>20m<EOR>");
    const std::pair<std::string, const char*> cases[] = {
        {"", "0 gleich, 0 abweichend, 2 nur links, 2 nur rechts"},
        {"--key CALL", "Zeile 1 │ 1  abweichend  A  20m"},
        {"--key ' band ,'", "Zeile 1 │ 2  abweichend  A  20m"},
        {"--key ''", "  BAND  20m  │ 40m"},
    };
    for (const auto& [key, line] : cases) {
        const std::string output = run("tallyrig compare left right " + key).output;
        EXPECT_NE(output.find(std::string(line) + "\n"), std::string::npos) << key << output;
    }
}

TEST_F(Compare, ShowsNothingThatActsOnTheScreen) {
    write("left", "<CALL:3>A\x1b[<GRIDSQUARE:2>\n\x07<N:1>x<EOR>");
    write("right", "<CALL:3>A\x1b[<GRIDSQUARE:2>\n\x07<N:2>\x9b\r<EOR>");
    EXPECT_EQ(run("tallyrig compare --key CALL,GRIDSQUARE left right").output,
              "left │ right\n0 gleich, 1 abweichend, 0 nur links, 0 nur rechts\n\n"
              "Zeile 1 │ 1  abweichend  A␛[  ␇\n  N  x  │ �␍\n");
}

using Stats = Tool;

TEST_F(Stats, GivesTotalsAndTablesAsJson) {
    const Ran ran = run("tallyrig stats --json -",
                        "<CALL:1>a<BAND:3>20M<MODE:3>ssb<QSO_DATE:8>20240229<COUNTRY:2>\xC3\xBC<EOR>"
                        "<CALL:1>A<BAND:2>2m<MODE:2>CW<QSO_DATE:8>20240228<EOR><CALL:1>B<BAND:3>20m<EOR>");
    EXPECT_EQ(ran.status, 0);
    EXPECT_EQ(ran.output, R"({"total":3,"uniqueCalls":2,"firstDate":"20240228","lastDate":"20240229",)"
                          R"("byBand":[{"label":"20m","count":2},{"label":"2m","count":1}],)"
                          R"("byMode":[{"label":"CW","count":1},{"label":"SSB","count":1}],)"
                          R"("byDay":[{"label":"20240228","count":1},{"label":"20240229","count":1}],)"
                          R"("byCountry":[{"label":"Ü","count":1}]})"
                          "\n");
    EXPECT_EQ(run("tallyrig stats --json -").output,
              R"({"total":0,"uniqueCalls":0,"firstDate":null,"lastDate":null,)"
              R"("byBand":[],"byMode":[],"byDay":[],"byCountry":[]})"
              "\n");
}

TEST_F(Stats, DrawBarsInProportion) {
    std::string log = "<CALL:1>A<MODE:2>CW<EOR>";
    for (int count = 0; count < 640; ++count) {
        log += count < 8 ? "<CALL:1>A<MODE:3>SSB<EOR>" : count < 24 ? "<MODE:2>FM<EOR>" : "<MODE:3>FT8<EOR>";
    }
    EXPECT_EQ(run("tallyrig stats -", log).output,
              "-: 641 QSOs, 1 Rufzeichen\n\nQSOs pro Modus\n"
              "  FT8  616  ████████████████████████████████████████\n"
              "  FM    16  █\n  SSB    8  ▌\n  CW     1  ▏\n");
    EXPECT_EQ(run("tallyrig stats -").output, "-: 0 QSOs, 0 Rufzeichen\n");
}

TEST_F(Stats, GatherALongTimeByMonthsAndYears) {
    const std::tuple<std::string, const char*, const char*> cases[] = {
        {logOfDays(20240131, 1), "31.01.2024\n", "\nQSOs pro Tag\n  31.01.2024  1  "},
        {logOfDays(20240101, 31) + logOfDays(20240201, 20), "01.01.2024 – 20.02.2024\n",
         "\nQSOs pro Monat\n  01.2024  31  "},
        {logOfDays(19990101, 12, 100) + logOfDays(20000101, 12, 100) + logOfDays(20050101, 31) +
             logOfDays(20050201, 12, 100),
         "01.01.1999 – 20051301\n", "\nQSOs pro Jahr\n  1999  12  "},
    };
    for (const auto& [log, period, chart] : cases) {
        const std::string output = run("tallyrig stats -", log).output;
        EXPECT_NE(output.find(period), std::string::npos) << output;
        EXPECT_NE(output.find(chart), std::string::npos) << output;
    }
}

TEST_F(Stats, ShowTheFirstOfManyCountriesAndSayHowManyThereAre) {
    std::string log;
    for (int country = 0; country < 1016; ++country) {
        log += "<COUNTRY:6>L\x1b" + std::to_string(1000 + country) + "<EOR>";
    }
    const Ran ran = run("tallyrig stats -", log);
    EXPECT_EQ(linesOf(ran.output).size(), 3 + 15 + 1);
    EXPECT_NE(ran.output.find("  L␛1000  1  █"), std::string::npos);
    EXPECT_TRUE(ran.output.ends_with("  und 1.001 weitere\n"));
}

}  // namespace
