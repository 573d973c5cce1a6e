// SPDX-License-Identifier: GPL-3.0-or-later
#include "TallyrigTool/ToolFixture.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace {

using nlohmann::json;
using namespace tallyrig::tool::testing;

/// Three logs of one contest in the folder `logs`, and a picture that is called one.
class CrossCheckCommand : public Tool {
  protected:
    CrossCheckCommand() {
        fs::create_directory(folder / "logs");
        write("logs/a.cbr", cabrillo("DL10A", {"1200 DL10A 59 1 HB9B 59 7", "1210 DL10A 59 2 F5C 59 9"}));
        write("logs/b.adi",
              "<EOH><CALL:5>DL10A<BAND:3>20M<MODE:3>SSB<QSO_DATE:8>20240323<TIME_ON:4>1201<STX:1>7<SRX:1>1"
              "<STATION_CALLSIGN:4>HB9B<EOR>");
        write("logs/c.log", cabrillo("DL2C", {"1300 DL2C 59 1 OZ9X 59 1"}));
        write("logs/bild.log", "\x89PNG");
    }

    static std::string cabrillo(const std::string& call, const std::vector<std::string>& qsos) {
        std::string log = "START-OF-LOG: 3.0\nCALLSIGN: " + call + "\n";
        for (const std::string& qso : qsos) {
            log += "QSO: 14200 PH 2024-03-23 " + qso + "\n";
        }
        return log;
    }
};

TEST_F(CrossCheckCommand, GivesEachFindingScoreAndPlace) {
    const Ran ran = run("tallyrig crosscheck logs --contest marconiVHF --json --threads 2");
    EXPECT_EQ(ran.status, 0);
    EXPECT_EQ(ran.complaint, "tallyrig: 3 Log(s) geladen, 1 übersprungen (keine QSOs): bild.log\n");
    const json result = json::parse(ran.output);
    EXPECT_EQ(result["contestName"], "Marconi Memorial (144 MHz CW)");
    EXPECT_EQ(result["logs"], json::parse(R"([{"name": "c.log", "owner": "DL2C"},
        {"name": "a.cbr", "owner": "DL10A"}, {"name": "b.adi", "owner": "HB9B"}])"));
    EXPECT_EQ(result["summaries"][1], json::parse(R"({"log": 1, "name": "a.cbr", "owner": "DL10A",
        "counts": {"confirmed": 1, "unique": 1}, "total": 2, "checkable": 1, "accuracy": 1.0})"));
    EXPECT_EQ(result["findings"].size(), 4U);
    EXPECT_EQ(result["findings"][1],
              json::parse(R"({"log": 1, "index": 0, "call": "HB9B", "status": "confirmed",
        "notes": [], "counterpartLog": 2, "counterpartIndex": 0})"));
    EXPECT_EQ(result["findings"][2]["counterpartLog"], nullptr);
    EXPECT_EQ(result["scores"][1]["station"]["dxcc"], "230");
    EXPECT_EQ(result["scores"][1]["claimed"]["invalidQSOs"], 2);
    EXPECT_EQ(result["scores"][1]["difference"], 0);
    EXPECT_EQ(result["ranking"][2], json::parse(R"({"rank": 3, "owner": "DL2C", "logs": [0],
        "counts": {"unique": 1}, "total": 1, "checkable": 0, "accuracy": null, "errors": 0, "claimed": 0,
        "checked": 0})"));
}

TEST_F(CrossCheckCommand, TellsAPersonTheRankingAndTheProblems) {
    write("logs/a.cbr", cabrillo("DL10A", {"1200 DL10A 59 1 HB9B 59 8", "1210 DL10A 59 2 F5C 59 9"}));
    const Ran ran = run("tallyrig crosscheck logs/a.cbr logs/b.adi --no-scoring");
    EXPECT_EQ(ran.status, 1);
    EXPECT_EQ(
        ran.output,
        "Helvetia: 2 Logs\n\n"
        "Rang  Rufzeichen  QSOs    Quote  bestätigt  NIL  Busted Call  Busted Exchange  Zeit/Band  Unique"
        "  ohne Log\n"
        "   1  HB9B           1  100,0 %          1    0            0                0          0       0"
        "         0\n"
        "   2  DL10A          2    0,0 %          0    0            0                1          0       1"
        "         0\n"
        "\nDL10A, a.cbr: 2 von 2 QSOs\n"
        "  Zeile  1  120000  20M  HB9B  Busted Exchange  Nummer: empfangen 8, gesendet 7\n"
        "  Zeile  2  121000  20M  F5C   Unique\n"
        "\nHB9B, b.adi: keine Auffälligkeiten\n");
    EXPECT_EQ(run("tallyrig crosscheck logs --no-exchange").status, 0);
}

TEST_F(CrossCheckCommand, ShowsAllThatItCanSayByTheExample) {
    const std::string output = run("tallyrig crosscheck Examples/crosscheck --rst").output;
    const std::string_view words[] = {"  bestätigt  ",
                                      "  Busted Exchange  Austausch: empfangen 12, gesendet 013\n",
                                      "  Nummer: empfangen 5, gesendet 4\n",
                                      "  RST: empfangen 57, gesendet 59\n",
                                      "  Locator: empfangen JO54, gesendet JO55QM\n",
                                      "  Zeit abweichend        Zeitdifferenz 12 min\n",
                                      "  Band/Modus abweichend  bei Gegenstation auf 70cm\n",
                                      "  bei Gegenstation in CW\n",
                                      "  Busted Call            vermutlich DL1QZA\n",
                                      "  NIL\n",
                                      "  Unique\n",
                                      "  nicht prüfbar    in 1 weiteren Log(s)\n",
                                      "  Zeit nicht prüfbar\n",
                                      "  Zusatz abweichend: DK5QMB ≠ DK5QMB/P\n",
                                      "  Gegenstation loggte DK5QMB statt DK5QMB/P\n",
                                      "  Gegenstation loggte dein Rufzeichen als DL1QZE\n"};
    for (const std::string_view word : words) {
        EXPECT_NE(output.find(word), std::string::npos) << word << " in " << output;
    }
}

TEST_F(CrossCheckCommand, WritesAFolderOfReports) {
    const std::string command =
        "tallyrig crosscheck logs --no-scoring --reports . --date 2024-04-01 --evaluator ' DL0EV '";
    EXPECT_EQ(run(command).status, 0);
    const Ran again = run(command + " --tolerance 9");
    EXPECT_NE(again.complaint.find("7 Dateien in «./Cross-Check Helvetia 2024-04-01 2» geschrieben."),
              std::string::npos)
        << again.complaint;
    const std::string report = read("Cross-Check Helvetia 2024-04-01 2/DL10A.txt");
    EXPECT_NE(report.find("Ausgewertet:  2024-04-01 · von DL0EV · 3 Logs, Toleranz ±9 min\n"),
              std::string::npos)
        << report;
}

TEST_F(CrossCheckCommand, RefusesWhatItCannotCompare) {
    const std::string_view calls[] = {"crosscheck logs/a.cbr",
                                      "crosscheck logs logs/fehlt.adi",
                                      "crosscheck logs --date 2024-02-30",
                                      "crosscheck logs --tolerance -1",
                                      "crosscheck logs --contest nichts",
                                      "crosscheck logs --reports fehlt"};
    for (const std::string_view call : calls) {
        const Ran ran = run("tallyrig " + std::string(call));
        EXPECT_EQ(ran.status, 2) << call;
        EXPECT_EQ(ran.output, "") << call;
        EXPECT_TRUE(ran.complaint.starts_with("tallyrig: ")) << call;
    }
}

}  // namespace
