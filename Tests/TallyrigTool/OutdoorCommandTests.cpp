// SPDX-License-Identifier: GPL-3.0-or-later
#include "TallyrigTool/ToolFixture.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <string>

namespace {

using nlohmann::json;
using namespace tallyrig::tool::testing;

using Outdoor = Tool;

const std::string contact =
    "<QSO_DATE:8>20240501<TIME_ON:4>1200<BAND:3>20m<MODE:2>CW<CALL:5>DL1QZ<OPERATOR:4>dl9x";

TEST_F(Outdoor, ChecksALogAsTheProgramAsks) {
    const Ran ran = run("tallyrig outdoor check --program bota --json -",
                        contact + "<MY_SIG:4>BOTA<MY_SIG_INFO:3>X-1<EOR>" + contact + "<EOR>");
    EXPECT_EQ(ran.status, 1);
    EXPECT_EQ(json::parse(ran.output), json::parse(R"json([
        {"file": "-", "records": 2, "errors": 1, "warnings": 1, "issues": [
            {"recordIndex": 0, "severity": "error", "kind": "outdoorInvalidReference",
             "message": "BOTA: ungültige Referenz: X-1", "field": "MY_SIG_INFO", "value": "X-1",
             "program": "BOTA"},
            {"recordIndex": 0, "severity": "warning", "kind": "outdoorWrongSig",
             "message": "BOTA: MY_SIG ist BOTA, erwartet BOTA – gehört das QSO zu einem anderen Programm? (Export setzt es auf BOTA)",
             "value": "BOTA", "program": "BOTA"}]}])json"));
    EXPECT_EQ(run("tallyrig outdoor check --program SOTA --role chaser -", contact + "<EOR>").output,
              "-: 1 QSO, keine Befunde\n");
    EXPECT_EQ(run("tallyrig outdoor check --program SOTA -", contact + "<EOR>").output,
              "-: 1 QSO, 1 Fehler, 0 Warnungen\n  Zeile 1  Fehler   SOTA: Pflichtfeld fehlt: MY_SOTA_REF\n");
}

TEST_F(Outdoor, ExportsTheFilesOfAProgram) {
    const std::string log = contact + "<MY_SOTA_REF:9>HB/BE-001<MY_SIG_INFO:13>K-1234,K-1235<EOR>" + contact +
                            "<MY_SIG_INFO:6>K-1235<EOR>";
    const Ran listed = run("tallyrig outdoor export --program sota --json -", log);
    EXPECT_EQ(json::parse(listed.output), json::parse(R"([{"reference": "HB/BE-001",
        "filename": "DL9X@HB_BE-001 20240501.csv", "qsoCount": 1,
        "content": "V2,DL9X,HB/BE-001,01/05/2024,1200,14MHz,CW,DL1QZ,,\r\n"}])"));
    EXPECT_TRUE(files().empty());
    const Ran written = run("tallyrig outdoor export --program POTA -o . -", log);
    EXPECT_EQ(written.status, 0);
    EXPECT_EQ(
        written.output,
        "-: 2 Dateien für POTA\n  DL9X@K-1234 20240501.adi: 1 QSO\n  DL9X@K-1235 20240501.adi: 2 QSOs\n");
    EXPECT_EQ(written.complaint, "tallyrig: 2 Dateien in «.» geschrieben.\n");
    EXPECT_TRUE(read("DL9X@K-1234 20240501.adi").starts_with("ADIF-Export erstellt mit Quillon\n"));
}

TEST_F(Outdoor, NamesWhatAFileWouldLose) {
    std::string records;
    for (int park = 0; park < 11; ++park) {
        records += "<RECORD><CALL>A</CALL><OPERATOR>DL9X</OPERATOR><MY_SIG_INFO>K-" +
                   std::to_string(1000 + park) + "</MY_SIG_INFO><A:B>1</A:B></RECORD>";
    }
    const Ran ran =
        run("tallyrig outdoor export --program POTA -o . -", "<ADX><RECORDS>" + records + "</RECORDS></ADX>");
    EXPECT_EQ(ran.status, 1);
    EXPECT_EQ(files().size(), 11U) << "written all the same";
    EXPECT_NE(
        ran.complaint.find("tallyrig: DL9X@K-1009 .adi: Nicht alles käme beim Lesen wieder: 1 Angabe in 1 "
                           "QSO.\ntallyrig:   QSO 1 mit „A“: Das Feld „A:B“ mit dem Wert „1“ ginge "
                           "verloren: Das Format kann den Namen nicht schreiben.\n"
                           "tallyrig: Ebenso in einer weiteren Datei.\n"),
        std::string::npos)
        << ran.complaint;
}

TEST_F(Outdoor, SaysWhatStandsInTheWay) {
    const Ran none = run("tallyrig outdoor export --program LLOTA --json -o . -", contact + "<EOR>");
    EXPECT_EQ(none.status, 1);
    EXPECT_EQ(none.output, "[]\n");
    EXPECT_EQ(none.complaint,
              "tallyrig: Keine LLOTA-Referenzen im Log gefunden. Jedes QSO braucht eine gültige Referenz in "
              "MY_SIG_INFO (z. B. CL-0001).\n");
    for (const auto& [option, place] : {std::pair("-o . ", "."), std::pair("", "-")}) {
        const Ran portable = run("tallyrig outdoor export --program WCA " + std::string(option) + "-",
                                 contact + "<STATION_CALLSIGN:6>DL9X/P<MY_SIG_INFO:4>HB-1<EOR>");
        EXPECT_EQ(portable.status, 2);
        EXPECT_EQ(portable.complaint, "tallyrig: " + std::string(place) +
                                          ": „DL9X/P@HB-1 20240501.adi“: Der Name einer Datei darf weder „/“ "
                                          "noch „..“ noch Steuerzeichen enthalten.\n");
    }
    const std::pair<std::string, std::string> calls[] = {
        {"outdoor", "Es fehlt der Befehl (Hilfe: tallyrig outdoor --help)"},
        {"outdoor zeige", "Unbekannter Befehl: zeige (Hilfe: tallyrig outdoor --help)"},
        {"outdoor check -", "Es fehlt: --program (Hilfe: tallyrig outdoor check --help)"},
        {"outdoor export --program IOTA check",
         "--program: IOTA ist keines von POTA, SOTA, BOTA, WWFF, LLOTA, WCA, GMA (Hilfe: tallyrig outdoor "
         "export --help)"},
        {"outdoor check --program SOTA export --role '[x'",
         "--role: [x ist keines von Activator, Chaser (Hilfe: tallyrig outdoor check --help)"},
        {"outdoor export check --program WCA", "check: Die Datei existiert nicht."}};
    for (const auto& [call, complaint] : calls) {
        const Ran ran = run("tallyrig " + call);
        EXPECT_EQ(ran.status, 2) << call;
        EXPECT_EQ(ran.complaint, "tallyrig: " + complaint + "\n");
    }
    EXPECT_TRUE(files().empty());
}

}  // namespace
