// SPDX-License-Identifier: GPL-3.0-or-later
#include "TallyrigTool/ToolFixture.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <string>

namespace {

using nlohmann::json;
using namespace tallyrig::tool::testing;

using Score = Tool;

TEST_F(Score, GivesAllFiguresAndEachQSO) {
    const Ran ran = run("tallyrig score --contest cqWW --dxcc 230 --json -",
                        "<CALL:5>DL1QZ<BAND:3>20m<CQZ:2>14<EOR><CALL:5>K1QZA<BAND:3>20m<CQZ:1>5<EOR><CALL:5>"
                        "k1qza<BAND:3>20M<EOR>");
    EXPECT_EQ(ran.status, 1);
    EXPECT_EQ(json::parse(ran.output), json::parse(R"({
        "contestName": "CQ WW DX", "totalQSOs": 3, "countedQSOs": 2, "dupeQSOs": 1, "invalidQSOs": 1,
        "qsoPoints": 3, "multiplierCount": 4, "total": 12,
        "multiplierBreakdown": [{"name": "CQ-Zonen", "count": 2}, {"name": "Länder", "count": 2}],
        "results": [
            {"index": 0, "points": 0, "isDupe": false, "newMultipliers": ["CQ-Zonen", "Länder"],
             "problems": [], "crossCheckRemoval": null},
            {"index": 1, "points": 3, "isDupe": false, "newMultipliers": ["CQ-Zonen", "Länder"],
             "problems": [], "crossCheckRemoval": null},
            {"index": 2, "points": 0, "isDupe": true, "newMultipliers": [],
             "problems": ["CQZ fehlt"], "crossCheckRemoval": null}],
        "removedQSOs": 0, "penaltyPoints": 0})"));
}

TEST_F(Score, IsTheSameOfEachFormatThatHoldsTheLocators) {
    const std::string options = " --contest darcUKW --grid jo62qm --json";
    const std::string first = run("tallyrig score Examples/maerzcontest.adi" + options).output;
    EXPECT_EQ(json::parse(first)["total"], 359415);
    for (const std::string format : {"adx", "edi"}) {
        EXPECT_EQ(run("tallyrig score Examples/maerzcontest." + format + options).output, first) << format;
    }
}

TEST_F(Score, TellsAPersonWhatCountsAndWhatDoesNot) {
    const std::string log =
        "<CALL:5>DL1QZ<BAND:3>20m<EOR><CALL:8>HB9QZA/P<BAND:2>2m<EOR><BAND:4> "
        "20M<EOR><CALL:5>DL1QZ<BAND:3>20M<EOR>";
    EXPECT_EQ(run("tallyrig score --contest fieldDay -", log).output,
              "-: USKA Field Day\n\n2 Punkte\n2 QSO-Punkte × 1 Multiplikatoren\n\n"
              "QSOs gesamt      4\ngewertet         1\nDubletten        1\nungültig         2\n"
              "QSO-Punkte       2\nMultiplikatoren  1\n"
              "\nMultiplikatoren\n  DXCC/WAE  1\n"
              "\nNicht gewertet (3)\n"
              "  Zeile  2  HB9QZA/P  2m   Band 2M nicht erlaubt\n"
              "  Zeile  3  —         20M  CALL fehlt\n"
              "  Zeile  4  DL1QZ     20M  Dublette\n");
    const Ran clean = run("tallyrig score --contest generic -", "<CALL:5>DL1QZ<EOR>");
    EXPECT_EQ(clean.status, 0);
    EXPECT_TRUE(clean.output.ends_with("\nAlle QSOs werden gewertet.\n")) << clean.output;
    EXPECT_EQ(run("tallyrig score --contest nmd - </dev/null").status, 0);
}

using Rules = Tool;

TEST_F(Rules, AreGivenWithAllTheirMembers) {
    const auto rules =
        json::parse(run("tallyrig rules sac --json --continent eu --grid jn47ab --dxcc 230").output);
    EXPECT_EQ(rules, json::parse(R"json({
        "name": "SAC (Scandinavian Activity)",
        "station": {"dxcc": "230", "continent": "EU", "cqZone": "14", "ituZone": "28", "gridSquare": "JN47AB"},
        "bands": ["10M", "15M", "20M", "40M", "80M"], "modes": null,
        "requiredFields": ["CALL"], "dupeFields": ["CALL", "BAND"], "dupeBands": null,
        "validRelation": {"workedCountryIn":
            ["118", "167", "221", "222", "224", "237", "242", "259", "266", "284", "5"]},
        "points": {"byRelation": [
            {"condition": {"sameContinent": null}, "points": 1, "bandGroupPoints": null},
            {"condition": {"differentContinent": null}, "points": 1, "bandGroupPoints": {"high": 1, "low": 3}}]},
        "multipliers": [{"name": "Rufgebiete", "kind": "callAreaPerDxcc", "field": "", "fallbackFields": [],
            "allowedValues": null, "excludedValues": null, "perBand": true, "perMode": false,
            "prefixLength": null, "bandWeights": null, "token": "whole", "alphabeticOnly": false,
            "mustContainLetter": false}],
        "bandGroups": {"10M": "high", "15M": "high", "20M": "high", "40M": "low", "80M": "low"},
        "scorePerBand": false
})json"));
    const auto pointsOf = [&](const std::string& contest) {
        return json::parse(run("tallyrig rules " + contest + " --json").output)["points"];
    };
    EXPECT_EQ(pointsOf("fieldDay")["byRelation"][0]["condition"],
              json::parse(R"({"and": [{"isPortable": null}, {"sameContinent": null}]})"));
    EXPECT_EQ(pointsOf("jidx"),
              json::parse(R"({"perBand": {"table": {"160M": 4, "80M": 2, "10M": 2}, "fallback": 1}})"));
    EXPECT_EQ(pointsOf("vhf"),
              json::parse(R"({"distanceKm": {"myField": "MY_GRIDSQUARE", "theirField": "GRIDSQUARE"}})"));
    EXPECT_EQ(pointsOf("generic"), json::parse(R"({"fixed": 1})"));
    EXPECT_EQ(
        json::parse(
            run("tallyrig rules vhf --json --grid \"$(printf '\\377')\"").output)["station"]["gridSquare"],
        "\uFFFD");
}

TEST_F(Rules, AreThoseOfAContestThatIsOffered) {
    const auto contests = json::parse(run("tallyrig contests --json").output);
    EXPECT_EQ(contests.size(), 33);
    EXPECT_EQ(contests[7]["rawValue"], "cqWW");
    EXPECT_EQ(contests[7]["label"], "CQ WW DX");
    for (const std::string call : {"tallyrig rules nix", "tallyrig score --contest nix -"}) {
        const Ran ran = run(call);
        EXPECT_EQ(ran.status, 2) << call;
        EXPECT_NE(ran.complaint.find("nix ist keiner von helvetia, uskaXmas, "), std::string::npos)
            << ran.complaint;
        EXPECT_NE(ran.complaint.find(", vhf, generic "), std::string::npos) << ran.complaint;
    }
}

using Calls = Tool;

TEST_F(Calls, SayWhatIsKnownOfThem) {
    EXPECT_EQ(json::parse(run("tallyrig call --json ea8/dl1qza/p XX '' '[F]'").output), json::parse(R"([
        {"call": "ea8/dl1qza/p", "dxccCode": "29", "continent": "AF", "wpxPrefix": "EA8", "baseCall": "DL1QZA"},
        {"call": "XX", "dxccCode": null, "continent": null, "wpxPrefix": "XX0", "baseCall": "XX"},
        {"call": "", "dxccCode": null, "continent": null, "wpxPrefix": null, "baseCall": null},
        {"call": "[F]", "dxccCode": null, "continent": null, "wpxPrefix": "[F]0", "baseCall": "[F]"}])"));
}

}  // namespace
