// SPDX-License-Identifier: GPL-3.0-or-later
#include "TallyrigTool/ToolFixture.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <fstream>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>

namespace {

using namespace tallyrig::tool::testing;

constexpr auto oddLog =
    "Zwei\nZeilen \"hier\"<ADIF_VER:5>3.1.7<EOH>"
    "<call:6>DL1QZA<NAME:5:S>J\xC3\xB6rg<X:0:><NOTES:6>a\r\n\\\x1b\t<EOR><EOR>";

using Dump = Tool;

TEST_F(Dump, GivesTheWholeDocumentAsJson) {
    const Ran ran = run("tallyrig dump --json -", oddLog);
    EXPECT_EQ(ran.status, 0);
    EXPECT_EQ(ran.output, R"({"file":"-","format":"adif","headerComment":"Zwei\nZeilen \"hier\"",)"
                          R"("headerFields":[{"name":"ADIF_VER","value":"3.1.7","type":null}],"records":[)"
                          "\n"
                          R"({"fields":[{"name":"CALL","value":"DL1QZA","type":null},)"
                          R"({"name":"NAME","value":"Jörg","type":"S"},{"name":"X","value":"","type":""},)"
                          R"({"name":"NOTES","value":"a\r\n\\\u001b\t","type":null}]},)"
                          "\n"
                          R"({"fields":[]})"
                          "\n]}\n");
}

TEST_F(Dump, ShowsAPersonAlignedLinesWithoutControlCharacters) {
    EXPECT_EQ(run("tallyrig dump -", oddLog).output,
              "-: ADIF, 2 QSOs\n"
              "\nKommentar\n  Zwei\n  Zeilen \"hier\"\n"
              "\nKopf\n  ADIF_VER  3.1.7\n"
              "\nZeile 1\n"
              "  CALL      DL1QZA\n"
              "  NAME (S)  Jörg\n"
              "  X\n"
              "  NOTES     a\n"
              "            \\␛␉\n"
              "\nZeile 2\n");
    const std::string longName(50, 'X');
    EXPECT_EQ(run("tallyrig dump -", "<CALL:1>A<" + longName + ":1>B<EOR>").output,
              "-: ADIF, 1 QSO\n\nZeile 1\n  CALL" + std::string(38, ' ') + "A\n  " + longName + "  B\n");
}

TEST_F(Dump, TakesAnyBytesForALog) {
    write("bytes", std::string_view("\0\xFF<\x80:3>\xFE\0\x1B<EOR><", 15));
    const auto json = nlohmann::json::parse(run("tallyrig dump --json bytes").output);
    EXPECT_EQ(json["records"][0]["fields"][0]["value"], std::string("\xC3\xBE\0\x1B", 4));
}

TEST_F(Dump, NamesTheFormat) {
    for (const auto& [file, format] : {std::pair("adx", "adx"), {"cbr", "cabrillo"}, {"edi", "edi"}}) {
        const Ran ran = run("tallyrig dump --json Examples/maerzcontest." + std::string(file));
        EXPECT_EQ(nlohmann::json::parse(ran.output)["format"], format);
    }
}

using Read = Tool;

TEST_F(Read, SaysWhatIsNotInTheLog) {
    const std::string damaged = "<EOH>\n<CALL:5>DL1AB<NAME:3>J\xC3\xB6rg\x1B<EOR>\n<CALL:5>DL2AB // x\n";
    const Ran text = run("tallyrig read - Examples/vereinsabend.adi none", damaged);
    EXPECT_EQ(text.status, 2);
    EXPECT_EQ(
        text.output,
        "-: ADIF, 2 QSOs, 1 Fehler, 1 Warnung, 1 Hinweis\n"
        "  Zeile 2  Fehler   QSO 1: NAME ist abgeschnitten, denn die Länge ist zu klein: Bis zum nächsten "
        "Feld steht da „Jörg␛“.\n"
        "           <NAME:3>Jörg␛<EOR>\n"
        "  Zeile 3  Warnung  QSO 2: Hinter dem letzten QSO fehlt <EOR>; es steht trotzdem im Log.\n"
        "           <CALL:5>DL2AB // x\n"
        "  Zeile 3  Hinweis  QSO 2: Hier steht Text zwischen den Feldern, der im Log fehlt.\n"
        "           // x\n"
        "\nExamples/vereinsabend.adi: ADIF, 14 QSOs, vollständig gelesen\n");
    EXPECT_TRUE(text.complaint.starts_with("tallyrig: none: ")) << text.complaint;

    EXPECT_EQ(run("tallyrig read - Examples/vereinsabend.adi", damaged).status, 1);
    EXPECT_EQ(run("tallyrig read -", "a<EOH><CALL:1>A // x<EOR>").status, 0) << "a note is no objection";
    EXPECT_EQ(
        run("tallyrig read --json - Examples/vereinsabend.adi", "<A>\x80<EOR>").output,
        R"([{"file":"-","format":"adif","records":1,"notes":[)"
        "\n"
        R"({"kind":"lengthMissing","severity":"error","offset":0,"line":1,"recordIndex":0,)"
        "\"excerpt\":\"<A>\uFFFD<EOR>\","
        "\"message\":\"A blieb leer, denn die Länge fehlt: Dahinter steht „\uFFFD“.\"},\n"
        R"({"kind":"windowsCharacters","severity":"warning","offset":3,"line":1,"recordIndex":null,)"
        "\"excerpt\":\"\uFFFD<EOR>\",\"message\":\"Hier stehen Zeichen, die so nur Windows schreibt; im Log "
        "sind es unsichtbare Steuerzeichen. Als UTF-8 gesichert, wird die Datei richtig gelesen.\"}\n]},\n"
        R"({"file":"vereinsabend.adi","format":"adif","records":14,"notes":[]}])"
        "\n");
}

TEST_F(Read, IsPointedToByOtherCommands) {
    for (const char* command : {"check --no-required", "convert --to adi"}) {
        const Ran ran = run("tallyrig " + std::string(command) + " -", "<EOH><CALL:5>DL1AB1<EOR>");
        EXPECT_EQ(ran.status, 0) << command;
        EXPECT_EQ(ran.complaint, "tallyrig: -: beim Lesen 1 Fehler, gezeigt von tallyrig read\n") << command;
    }
}

using Check = Tool;

TEST_F(Check, GivesEachKindOfFindingWithItsPayload) {
    const std::string expected = R"(1 error missingRequiredField {"field":"CALL"}
2 error invalidDate {"field":"QSO_DATE","value":"20240230"}
3 error invalidTime {"field":"TIME_ON","value":"2460"}
4 warning unknownBand {"value":"21m"}
5 warning unknownMode {"value":"FUNK"}
6 warning invalidGridsquare {"field":"GRIDSQUARE","value":"JS62"}
7 warning nonNumericFrequency {"field":"FREQ","value":"14,250"}
8 warning implausibleCallsign {"value":"DL1-QZH"}
9 warning duplicate {"keyFields":["CALL","BAND","MODE"],"otherRecordNumbers":[11]}
10 warning duplicate {"keyFields":["CALL","BAND","MODE"],"otherRecordNumbers":[10]}
11 warning unknownField {"field":"LIEBLINGSFARBE"}
12 warning invalidEnumeration {"field":"QSL_RCVD","value":"Z"}
13 warning invalidValue {"field":"TX_PWR","value":"viel","dataType":"Number"}
14 warning frequencyOutsideBand {"freq":"14.351","band":"20m"}
)";
    const Ran ran = run("tallyrig check --json Examples/befunde.adi");
    EXPECT_EQ(ran.status, 1);
    std::string findings;
    const auto json = nlohmann::ordered_json::parse(ran.output);
    for (auto issue : json[0]["issues"]) {
        std::string line;
        for (const char* key : {"recordIndex", "severity", "kind"}) {
            const auto& member = issue[key];
            line += (member.is_string() ? member.get<std::string>() : member.dump()) + " ";
            issue.erase(key);
        }
        EXPECT_TRUE(issue["message"].is_string());
        issue.erase("message");
        findings += line + issue.dump() + "\n";
    }
    EXPECT_TRUE(findings.starts_with(expected)) << findings;
}

TEST_F(Check, AppliesTheSwitches) {
    for (const auto& [switches, errors, warnings] : {std::tuple("--no-required", 4, 13),
                                                     {"--no-format", 1, 2},
                                                     {"--no-duplicates", 5, 11},
                                                     {"--no-unknown", 5, 12},
                                                     {"--no-required --no-format --no-duplicates", 0, 0}}) {
        const Ran ran = run("tallyrig check --json Examples/befunde.adi " + std::string(switches));
        const auto result = nlohmann::json::parse(ran.output)[0];
        EXPECT_EQ((std::pair<int, int>(result["errors"], result["warnings"])), std::pair(errors, warnings))
            << switches;
        EXPECT_EQ(ran.status, errors + warnings > 0 ? 1 : 0) << switches;
    }
}

TEST_F(Check, NamesAPersonTenOfManyLinesAndAProgramAll) {
    std::string log;
    for (int count = 0; count < 13; ++count) {
        log += "<CALL:6>DL1QZA<BAND:3>20m<MODE:2>CW<EOR>";
    }
    EXPECT_NE(run("tallyrig check --no-required -", log)
                  .output.find("auch in Zeile 2, 3, 4, 5, 6, 7, 8, 9, 10, 11 und 2 weiteren\n"),
              std::string::npos);
    log += "<CALL:6>DL1QZA<BAND:3>40m<MODE:2>CW<EOR>";
    for (const auto& [criterion, others] : {std::pair("call_band", 12), {"call", 13}}) {
        const auto json = nlohmann::json::parse(
            run("tallyrig check --no-required --json - --duplicates " + std::string(criterion), log).output);
        EXPECT_EQ(json[0]["issues"][12]["otherRecordNumbers"].size(), others);
    }
}

TEST_F(Check, TellsLogsApartAndGoesOnBehindAnUnreadableOne) {
    const std::string fine =
        R"({"file":"vereinsabend.adi","records":14,"errors":0,"warnings":0,"issues":[]})";
    const Ran ran =
        run("tallyrig check --json fehlt.adi Examples/vereinsabend.adi Examples/vereinsabend.adi");
    EXPECT_EQ(ran.status, 2);
    EXPECT_EQ(ran.complaint, "tallyrig: fehlt.adi: Die Datei existiert nicht.\n");
    EXPECT_EQ(ran.output, "[" + fine + ",\n" + fine + "]\n");
}

TEST_F(Check, TakesEveryNameForItself) {
    for (const char* name : {"[a.adi]", "[a.adi,b.adi]", "\1[a]", "-x.adi", "a.adi"}) {
        write(name, "");
    }
    EXPECT_EQ(run("tallyrig check '[a.adi]' '[a.adi,b.adi]' '\1[a]' -- -x.adi").output,
              "[a.adi]: 0 QSOs, keine Befunde\n\n[a.adi,b.adi]: 0 QSOs, keine Befunde\n\n"
              "␁[a]: 0 QSOs, keine Befunde\n\n-x.adi: 0 QSOs, keine Befunde\n");
}

using Convert = Tool;

TEST_F(Convert, WritesADITextAndADX) {
    const std::string header =
        "Zwei\nZeilen \"hier\"\n<ADIF_VER:5>3.1.5 <PROGRAMID:7>Quillon <PROGRAMVERSION:5>" TOOL_VERSION
        " <CREATED_TIMESTAMP:15>20240229 235959 <EOH>\n\n";
    const std::string records = "<CALL:6>DL1QZA <NAME:5:S>Jörg <X:0> <NOTES:6>a\r\n\\\x1b\t <EOR>\n<EOR>\n";
    const std::string moment = "--timestamp '20240229 235959' -";
    EXPECT_EQ(run("tallyrig convert --to adi --adif-version 3.1.5 " + moment, oddLog).output,
              header + records);
    EXPECT_EQ(run("tallyrig convert - --to adi --no-header", oddLog).output, records);
    EXPECT_NE(run("tallyrig convert --to adi --adif-version ' ' -", oddLog).output.find("<ADIF_VER:5>3.1.7 "),
              std::string::npos);
    EXPECT_NE(run("tallyrig convert --to adx " + moment, oddLog)
                  .output.find("<CREATED_TIMESTAMP>20240229 235959</CREATED_TIMESTAMP>"),
              std::string::npos);
}

TEST_F(Convert, NamesWhatWouldNotComeBack) {
    const Ran adx = run("tallyrig convert --to adx -o neu.adx -", "<EOH><CALL:1>A<NOTES:1>\x01<EOR>");
    EXPECT_EQ(adx.status, 1);
    EXPECT_NE(read("neu.adx").find("NOTES"), std::string::npos) << "written all the same";
    EXPECT_EQ(adx.complaint,
              "tallyrig: -: Nicht alles käme beim Lesen wieder: 1 Angabe in 1 QSO; das letzte QSO würde gar "
              "nicht gelesen.\ntallyrig:   QSO 1 mit „A“: „NOTES“: Der Wert „␁“ ginge verloren.\n");
    std::string many;
    for (int record = 0; record < 30; ++record) {
        many += "<RECORD><A:B>1</A:B></RECORD>";
    }
    const Ran adi = run("tallyrig convert --to adi -", "<ADX><RECORDS>" + many + "</RECORDS></ADX>");
    EXPECT_EQ(adi.status, 1);
    EXPECT_TRUE(adi.complaint.ends_with("\ntallyrig:   und 20 weitere\n")) << adi.complaint;
    EXPECT_EQ(std::ranges::count(adi.complaint, '\n'), 13) << "with what the reader says and the sum";
}

TEST_F(Convert, StartsHeadersFromTheSuggestedOnesAndSetsWhatIsAsked) {
    const std::string log = "<CALL:6>DL1QZA<STATION_CALLSIGN:6>DL0QLN<MY_GRIDSQUARE:6>JO40HA<EOR>";
    const std::pair<std::string, const char*> cases[] = {
        {"--to cbr --set contest=WAG --set soapbox=a=b | grep -E "
         "'^(CALLSIGN|CATEGORY-MODE|CONTEST|SOAPBOX):'",
         "CONTEST: WAG\nCALLSIGN: DL0QLN\nCATEGORY-MODE: MIXED\nSOAPBOX: a=b\n"},
        {"--to edi --set contestName=Juli | grep -E '^(PCall|PWWLo|TName)='",
         "TName=Juli\nPCall=DL0QLN\nPWWLo=JO40HA\n"}};
    for (const auto& [arguments, header] : cases) {
        EXPECT_EQ(run("tallyrig convert - " + arguments + " | tr -d '\\r'", log).output, header);
    }
}

TEST_F(Convert, ReplacesTheTargetWholeOrNotAtAll) {
    write("log.adi", oddLog);
    EXPECT_EQ(run("tallyrig convert --to adi --no-header log.adi -o log.adi").status, 0);
    EXPECT_TRUE(read("log.adi").starts_with("<CALL:6>DL1QZA"));
    for (const std::string target : {"fehlt/neu.adi", ".", "/dev/full"}) {
        const Ran ran = run("tallyrig convert --to adi log.adi -o " + target);
        EXPECT_EQ(ran.status, 2) << target;
        EXPECT_NE(ran.complaint.find("tallyrig: " + target + ": "), std::string::npos) << ran.complaint;
    }
    const Ran tooLarge = run("ulimit -f 1; tallyrig convert --to adi Examples/jahreslog.adi -o log.adi");
    EXPECT_EQ(tooLarge.complaint, "tallyrig: log.adi: Die Datei ist zu groß.\n");
    EXPECT_EQ(run("tallyrig convert --to adi fehlt.adi -o log.adi").status, 2);
    EXPECT_TRUE(read("log.adi").starts_with("<CALL:6>DL1QZA"));
    EXPECT_EQ(files().size(), 1);
}

using Distance = Tool;

TEST_F(Distance, IsThatOfTheCentresOfTheLocators) {
    EXPECT_EQ(nlohmann::json::parse(run("tallyrig distance JO62 JO62 --json").output),
              (nlohmann::json{{"greatCircleKm", 0}, {"distanceKm", 0}}));
}

using Failure = Tool;

TEST_F(Failure, NamesWhatIsWrong) {
    const std::tuple<std::string, std::string> cases[] = {
        {"", "Es fehlt der Befehl (Hilfe: tallyrig --help)"},
        {"zeige dump a", "Unbekannter Befehl: zeige (Hilfe: tallyrig dump --help)"},
        {"dump", "Es fehlt: FILE (Hilfe: tallyrig dump --help)"},
        {"dump a -- -b", "Unbekannte Angabe: -b (Hilfe: tallyrig dump --help)"},
        {"dump -x.adi",
         "Unbekannte Angabe: -x.adi. Eine Datei dieses Namens heißt hier ./-x.adi oder steht hinter -- "
         "(Hilfe: "
         "tallyrig dump --help)"},
        {"check --duplicates band a",
         "--duplicates: band ist keines von call_band_mode, call_band, call_band_mode_date, call "
         "(Hilfe: tallyrig check --help)"},
        {"convert a --to", "Die Zahl der Werte stimmt nicht: --to (Hilfe: tallyrig convert --help)"},
        {"convert a --to pdf",
         "--to: Unbekanntes Format: pdf (möglich sind adi, adx, cbr, edi) (Hilfe: tallyrig convert --help)"},
        {"convert --to cbr --set contest Examples/befunde.adi",
         "--set: contest hat nicht die Form NAME=WERT (Hilfe: tallyrig convert --help)"},
        {"convert --to cbr --set Contest=x Examples/befunde.adi",
         "--set: Contest=x passt zu keinem Feld im Kopf von cbr (Hilfe: tallyrig convert --help)"},
        {"convert --to adx --set callsign=x Examples/befunde.adi",
         "--set gilt nur für cbr und edi (Hilfe: tallyrig convert --help)"},
        {"convert a --to adi --timestamp '20230229 000000'",
         "--timestamp: \"20230229 000000\" ist kein Zeitpunkt der Form \"yyyyMMdd HHmmss\" "
         "(Hilfe: tallyrig convert --help)"},
        {"distance JO62 Berlin", "Berlin: kein Locator"},
        {"dump '\x1b[31m.adi'", "␛[31m.adi: Die Datei existiert nicht."},
        {"dump - <&-", "-: Die Standardeingabe konnte nicht gelesen werden: Sie ist geschlossen."},
        {"check - -",
         "-: beim Lesen 1 Warnung, gezeigt von tallyrig read\n"
         "tallyrig: -: Die Standardeingabe kann nur einmal gelesen werden."},
    };
    for (const auto& [call, complaint] : cases) {
        const Ran ran = run("tallyrig " + call);
        EXPECT_EQ(ran.status, 2) << call;
        EXPECT_EQ(ran.complaint, "tallyrig: " + complaint + "\n");
    }
}

TEST_F(Failure, OfTheOutputIsNotPassedOver) {
    // What is written at the end, and what has to be written on the way.
    for (const std::string call :
         {"--help", "check Examples/vereinsabend.adi", "dump --json Examples/jahreslog.adi"}) {
        for (const std::string redirection : {" >/dev/full", " >&-"}) {
            const Ran ran = run("tallyrig " + call + redirection);
            EXPECT_EQ(ran.status, 2) << call;
            EXPECT_TRUE(
                ran.complaint.starts_with("tallyrig: Die Standardausgabe konnte nicht geschrieben werden: "))
                << call << ": " << ran.complaint;
        }
    }
    run("{ tallyrig dump Examples/jahreslog.adi; echo $? >status; } | :");
    EXPECT_EQ(read("status"), "2\n");
}

using Help = Tool;

TEST_F(Help, ShowsExamplesThatRun) {
    std::size_t examples = 0;
    for (const std::string page :
         {"", "dump ", "read ", "check ", "convert ", "compare ", "stats ", "distance ", "call ", "contests ",
          "rules ", "score ", "outdoor ", "outdoor check ", "outdoor export "}) {
        for (const std::string& line : linesOf(run("tallyrig " + page + "--help").output)) {
            if (line.starts_with("  tallyrig ")) {
                ++examples;
                EXPECT_LT(run(line).status, 2) << line;
            }
        }
    }
    EXPECT_EQ(examples, 18);
    EXPECT_EQ(run("tallyrig --version").output, "tallyrig " TOOL_VERSION "\n");
}

/// In the README, a line in a block that starts with "$ " is a command and those up to the next one, or to
/// the end of the block, are what it prints.
using Readme = Tool;

TEST_F(Readme, ShowsWhatTheToolPrints) {
    std::ifstream file(README_FILE);
    std::string command;
    std::string printed;
    std::size_t commands = 0;
    for (std::string line; std::getline(file, line);) {
        if (!command.empty() && (line.starts_with("$ ") || line.starts_with("```"))) {
            const Ran ran = run(command);
            EXPECT_EQ(ran.output + ran.complaint, printed) << command;
            ++commands;
            command.clear();
            printed.clear();
        }
        if (line.starts_with("$ ")) {
            command = line.substr(2);
        } else if (!command.empty()) {
            printed += line + "\n";
        }
    }
    EXPECT_EQ(commands, 23);
}

}  // namespace
