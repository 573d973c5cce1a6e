#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace {

namespace fs = std::filesystem;

/// What a run of the tool left behind.
struct Ran {
    int status = -1;
    std::string output;
    std::string complaint;
};

/// Runs the built tool in a folder of its own, in which the project's `Examples` are found.
class Tool : public testing::Test {
  protected:
    Tool() {
        std::string pattern = fs::temp_directory_path() / "tallyrig-XXXXXX";
        folder = ::mkdtemp(pattern.data());
        fs::create_directory_symlink(EXAMPLES_FOLDER, folder / "Examples");
    }
    ~Tool() override { fs::remove_all(folder); }

    /// The command line as a shell reads it, so that it may redirect the streams.
    Ran run(const std::string& commandLine, std::string_view input = "") const {
        write(".in", input);
        const std::string script = "cd '" + folder.string() + "' && PATH='" TOOL_FOLDER ":'$PATH && { " +
                                   commandLine + "\n} <.in >.out 2>.err";
        const int result = std::system(script.c_str());
        return {WIFEXITED(result) ? WEXITSTATUS(result) : -1, read(".out"), read(".err")};
    }
    void write(const std::string& name, std::string_view content) const {
        std::ofstream(folder / name, std::ios::binary) << content;
    }
    std::string read(const std::string& name) const {
        std::ifstream file(folder / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    /// The names in the folder that a test or the tool put there.
    std::vector<std::string> files() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder)) {
            const std::string name = entry.path().filename();
            if (name != "Examples" && name != ".in" && name != ".out" && name != ".err") {
                names.push_back(name);
            }
        }
        return names;
    }

    fs::path folder;
};

std::vector<std::string> linesOf(const std::string& text) {
    std::istringstream stream(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

constexpr auto oddLog =
    "Zwei\nZeilen \"hier\"<ADIF_VER:5>3.1.7<EOH>"
    "<call:6>DL1QZA<NAME:5:S>J\xC3\xB6rg<X:0:><NOTES:6>a\r\n\\\x1b\t<EOR><EOR>";

using Dump = Tool;

TEST_F(Dump, GivesTheWholeDocumentAsJson) {
    const Ran ran = run("tallyrig dump --json -", oddLog);
    EXPECT_EQ(ran.status, 0);
    EXPECT_EQ(ran.output,
              R"({"file": "-", "format": "adif", "headerComment": "Zwei\nZeilen \"hier\"", )"
              R"("headerFields": [{"name": "ADIF_VER", "value": "3.1.7", "type": null}], "records": [)"
              "\n"
              R"({"fields": [{"name": "CALL", "value": "DL1QZA", "type": null}, )"
              R"({"name": "NAME", "value": "Jörg", "type": "S"}, {"name": "X", "value": "", "type": ""}, )"
              R"({"name": "NOTES", "value": "a\r\n\\\u001b\t", "type": null}]},)"
              "\n"
              R"({"fields": []})"
              "\n]}\n");
}

TEST_F(Dump, IsOneJsonDocumentHoweverLargeTheLog) {
    const auto json = nlohmann::json::parse(run("tallyrig dump Examples/jahreslog.adi --json").output);
    EXPECT_EQ(json["file"], "jahreslog.adi");
    EXPECT_EQ(json["records"].size(), 2000);
    EXPECT_EQ(json["records"][1999]["fields"].size(), 19);
}

TEST_F(Dump, ShowsAPersonAlignedLinesWithoutControlCharacters) {
    const Ran ran = run("tallyrig dump -", oddLog);
    EXPECT_EQ(ran.status, 0);
    EXPECT_EQ(ran.output,
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
}

TEST_F(Dump, TakesAnyBytesForALog) {
    write("leer", "");
    write("bytes", std::string_view("\0\xFF<\x80:3>\xFE\0\x1B<EOR><", 15));
    EXPECT_EQ(run("tallyrig dump leer").output, "leer: ADIF, 0 QSOs\n");
    const Ran ran = run("tallyrig dump --json bytes");
    EXPECT_EQ(ran.status, 0);
    EXPECT_EQ(nlohmann::json::parse(ran.output)["records"][0]["fields"][0]["value"],
              std::string("\xC3\xBE\0\x1B", 4));
}

TEST_F(Dump, ReadsEachFormatByItsContent) {
    const struct {
        std::string format;
        std::string content;
    } cases[] = {
        {"adif", "<CALL:6>DL1QZA<EOR>"},
        {"adx", "<?xml version=\"1.0\"?><ADX><RECORDS><RECORD><CALL>DL1QZA</CALL></RECORD></RECORDS></ADX>"},
        {"cabrillo",
         "START-OF-LOG: 3.0\nQSO: 14000 CW 2024-01-01 1200 DL0QLN 599 1 DL1QZA 599 2\nEND-OF-LOG:\n"},
        {"edi", "[REG1TEST;1]\n[QSORecords;1]\n240101;1200;DL1QZA;1;59;001;59;002;;JO62QM;5;;;;\n"},
    };
    for (const auto& [format, content] : cases) {
        const auto json = nlohmann::json::parse(run("tallyrig dump --json -", content).output);
        EXPECT_EQ(json["format"], format);
        ASSERT_EQ(json["records"].size(), 1) << format;
        const auto& fields = json["records"][0]["fields"];
        EXPECT_TRUE(std::ranges::any_of(fields, [](const auto& field) {
            return field["name"] == "CALL" && field["value"] == "DL1QZA";
        })) << format;
    }
}

using Check = Tool;

TEST_F(Check, GivesEachKindOfFindingWithItsPayload) {
    const struct {
        std::size_t recordIndex;
        std::string severity;
        std::string kind;
        std::string payload;
    } cases[] = {
        {1, "error", "missingRequiredField", R"({"field":"CALL"})"},
        {2, "error", "invalidDate", R"({"field":"QSO_DATE","value":"20240230"})"},
        {3, "error", "invalidTime", R"({"field":"TIME_ON","value":"2460"})"},
        {4, "warning", "unknownBand", R"({"value":"21m"})"},
        {5, "warning", "unknownMode", R"({"value":"FUNK"})"},
        {6, "warning", "invalidGridsquare", R"({"field":"GRIDSQUARE","value":"JS62"})"},
        {7, "warning", "nonNumericFrequency", R"({"field":"FREQ","value":"14,250"})"},
        {8, "warning", "implausibleCallsign", R"({"value":"DL1-QZH"})"},
        {9, "warning", "duplicate", R"({"keyFields":["CALL","BAND","MODE"],"otherRecordNumbers":[11]})"},
        {10, "warning", "duplicate", R"({"keyFields":["CALL","BAND","MODE"],"otherRecordNumbers":[10]})"},
        {11, "warning", "unknownField", R"({"field":"LIEBLINGSFARBE"})"},
        {12, "warning", "invalidEnumeration", R"({"field":"QSL_RCVD","value":"Z"})"},
        {13, "warning", "invalidValue", R"({"field":"TX_PWR","value":"viel","dataType":"Number"})"},
        {14, "warning", "frequencyOutsideBand", R"({"freq":"14.351","band":"20m"})"},
        {15, "error", "invalidDate", R"({"field":"QSO_DATE","value":"20240432"})"},
        {15, "error", "invalidTime", R"({"field":"TIME_ON","value":"12"})"},
        {15, "warning", "unknownBand", R"({"value":"20 m"})"},
        {15, "warning", "nonNumericFrequency", R"({"field":"FREQ_RX","value":"abc"})"},
    };
    const Ran ran = run("tallyrig check --json Examples/befunde.adi");
    EXPECT_EQ(ran.status, 1);
    const auto issues = nlohmann::ordered_json::parse(ran.output)[0]["issues"];
    ASSERT_EQ(issues.size(), std::size(cases));
    for (std::size_t index = 0; index < issues.size(); ++index) {
        const auto& [recordIndex, severity, kind, payload] = cases[index];
        nlohmann::ordered_json issue = issues[index];
        EXPECT_EQ(issue["recordIndex"], recordIndex);
        EXPECT_EQ(issue["severity"], severity);
        EXPECT_EQ(issue["kind"], kind);
        for (const char* key : {"recordIndex", "severity", "kind", "message"}) {
            issue.erase(key);
        }
        EXPECT_EQ(issue.dump(), payload);
    }
}

TEST_F(Check, PutsJsonDownInTheOrderOfItsKeys) {
    EXPECT_EQ(run("tallyrig check --json --no-required -", "<CALL:6>DL1QZA<TX_PWR:4>viel<EOR>").output,
              R"([{"file": "-", "records": 1, "errors": 0, "warnings": 1, "issues": [)"
              "\n"
              R"({"recordIndex":0,"severity":"warning","kind":"invalidValue",)"
              R"("message":"Sendeleistung (W): \"viel\" passt nicht zum Typ Number",)"
              R"("field":"TX_PWR","value":"viel","dataType":"Number"})"
              "\n]}]\n");
}

TEST_F(Check, AppliesTheSwitches) {
    const struct {
        std::string switches;
        int errors;
        int warnings;
    } cases[] = {
        {"", 5, 13},
        {"--no-required", 4, 13},
        {"--no-format", 1, 2},
        {"--no-duplicates", 5, 11},
        {"--no-unknown", 5, 12},
        {"--no-required --no-format --no-duplicates", 0, 0},
        {"--duplicates call", 5, 13},
        {"--duplicates call_band --no-format", 1, 2},
        {"--duplicates call_band_mode_date", 5, 13},
    };
    for (const auto& [switches, errors, warnings] : cases) {
        const Ran ran = run("tallyrig check --json Examples/befunde.adi " + switches);
        const auto result = nlohmann::json::parse(ran.output)[0];
        EXPECT_EQ(result["errors"], errors) << switches;
        EXPECT_EQ(result["warnings"], warnings) << switches;
        EXPECT_EQ(ran.status, errors + warnings > 0 ? 1 : 0) << switches;
    }
}

TEST_F(Check, FindsDuplicatesByTheCriterion) {
    // The second QSO differs from the first in the date, the third in the mode, the fourth in the band.
    const std::string log =
        "<CALL:6>DL1QZA<BAND:3>20m<MODE:2>CW<QSO_DATE:8>20240101<EOR>"
        "<CALL:6>DL1QZA<BAND:3>20m<MODE:2>CW<QSO_DATE:8>20240102<EOR>"
        "<CALL:6>DL1QZA<BAND:3>20m<MODE:3>SSB<QSO_DATE:8>20240101<EOR>"
        "<CALL:6>DL1QZA<BAND:3>40m<MODE:2>CW<QSO_DATE:8>20240101<EOR>";
    const struct {
        std::string criterion;
        std::size_t duplicates;
    } cases[] = {{"call_band_mode_date", 0}, {"call_band_mode", 2}, {"call_band", 3}, {"call", 4}};
    for (const auto& [criterion, duplicates] : cases) {
        const Ran ran = run("tallyrig check --json --no-required --duplicates " + criterion + " -", log);
        EXPECT_EQ(nlohmann::json::parse(ran.output)[0]["issues"].size(), duplicates) << criterion;
    }
}

TEST_F(Check, TellsLogsApartAndGoesOnBehindAnUnreadableOne) {
    const Ran good = run("tallyrig check Examples/vereinsabend.adi Examples/jahreslog.adi --no-duplicates");
    EXPECT_EQ(good.status, 0);
    EXPECT_EQ(good.output,
              "Examples/vereinsabend.adi: 14 QSOs, keine Befunde\n\nExamples/jahreslog.adi: 2000 QSOs, keine "
              "Befunde\n");
    const Ran ran = run("tallyrig check --json fehlt.adi Examples/vereinsabend.adi");
    EXPECT_EQ(ran.status, 2);
    EXPECT_EQ(ran.complaint, "tallyrig: fehlt.adi: Die Datei existiert nicht.\n");
    EXPECT_EQ(ran.output,
              R"([{"file": "vereinsabend.adi", "records": 14, "errors": 0, "warnings": 0, "issues": []}])"
              "\n");
}

using Convert = Tool;

TEST_F(Convert, WritesADIText) {
    const std::string header =
        "Zwei\nZeilen \"hier\"\n<ADIF_VER:5>3.1.5 <PROGRAMID:7>Quillon <PROGRAMVERSION:5>" TOOL_VERSION
        " <CREATED_TIMESTAMP:15>20240229 235959 <EOH>\n\n";
    const std::string records = "<CALL:6>DL1QZA <NAME:5:S>Jörg <X:0> <NOTES:6>a\r\n\\\x1b\t <EOR>\n<EOR>\n";
    const Ran whole =
        run("tallyrig convert --to adi --adif-version 3.1.5 --timestamp '20240229 235959' -", oddLog);
    EXPECT_EQ(whole.status, 0);
    EXPECT_EQ(whole.output, header + records);
    EXPECT_EQ(run("tallyrig convert - --to adi --no-header", oddLog).output, records);
    EXPECT_NE(run("tallyrig convert --to adi --adif-version ' ' -", oddLog).output.find("<ADIF_VER:5>3.1.7 "),
              std::string::npos);
}

TEST_F(Convert, WritesADX) {
    const Ran ran = run("tallyrig convert --to adx --timestamp '20240229 235959' -", "<CALL:6>DL1QZA<EOR>");
    EXPECT_EQ(ran.status, 0);
    EXPECT_NE(ran.output.find("<CREATED_TIMESTAMP>20240229 235959</CREATED_TIMESTAMP>"), std::string::npos);
    EXPECT_NE(ran.output.find("<CALL>DL1QZA</CALL>"), std::string::npos);
}

TEST_F(Convert, StartsHeadersFromTheSuggestedOnesAndSetsWhatIsAsked) {
    const std::string log =
        "<CALL:6>DL1QZA<QSO_DATE:8>20240101<TIME_ON:4>1200<BAND:2>2m<MODE:2>CW<RST_SENT:3>599<RST_RCVD:3>579"
        "<STX:1>1<SRX:1>2<STATION_CALLSIGN:6>DL0QLN<MY_GRIDSQUARE:6>JO40HA<GRIDSQUARE:6>JO62QM<EOR>";
    const struct {
        std::string arguments;
        std::vector<std::string> lines;
    } cases[] = {
        {"--to cbr", {"CALLSIGN: DL0QLN", "CATEGORY-MODE: MIXED", "CONTEST: "}},
        {"--to cbr --set contest=WAG --set soapbox=a=b --set callsign=DK0QLN",
         {"CALLSIGN: DK0QLN", "CATEGORY-MODE: MIXED", "CONTEST: WAG", "SOAPBOX: a=b"}},
        {"--to edi", {"PCall=DL0QLN", "PWWLo=JO40HA", "TDate=20240101;20240101", "TName="}},
        {"--to edi --set contestName=Juli --set pointsMode=blank", {"PCall=DL0QLN", "TName=Juli", "CQSOP="}},
    };
    for (const auto& [arguments, lines] : cases) {
        const Ran ran = run("tallyrig convert " + arguments + " - | tr -d '\\r'", log);
        EXPECT_EQ(ran.complaint, "");
        const std::vector<std::string> written = linesOf(ran.output);
        for (const std::string& line : lines) {
            EXPECT_EQ(std::ranges::count(written, line), 1) << arguments << ": " << line << "\n"
                                                            << ran.output;
        }
    }
}

TEST_F(Convert, ReplacesTheTargetWholeOrNotAtAll) {
    write("log.adi", oddLog);
    EXPECT_EQ(run("tallyrig convert --to adi --no-header log.adi -o log.adi").status, 0);
    EXPECT_EQ(read("log.adi"), "<CALL:6>DL1QZA <NAME:5:S>Jörg <X:0> <NOTES:6>a\r\n\\\x1b\t <EOR>\n<EOR>\n");

    fs::create_directory(folder / "ordner");
    for (const std::string target : {"fehlt/neu.adi", "ordner", "/dev/full"}) {
        const Ran ran = run("tallyrig convert --to adi log.adi -o " + target);
        EXPECT_EQ(ran.status, 2) << target;
        EXPECT_TRUE(ran.complaint.starts_with("tallyrig: " + target + ": ")) << ran.complaint;
    }
    EXPECT_EQ(run("tallyrig convert --to adi fehlt.adi -o log.adi").status, 2);
    EXPECT_TRUE(read("log.adi").starts_with("<CALL:6>"));
    EXPECT_EQ(files().size(), 2);
}

using Failure = Tool;

TEST_F(Convert, GaveTheExamplesOfOneContestTheirFourFormats) {
    const auto callsOf = [&](const std::string& file) {
        const auto document = nlohmann::json::parse(run("tallyrig dump --json Examples/" + file).output);
        std::string calls;
        for (const auto& record : document["records"]) {
            for (const auto& field : record["fields"]) {
                calls += field["name"] == "CALL" ? field["value"].get<std::string>() + " " : "";
            }
        }
        return calls;
    };
    const std::string calls = callsOf("maerzcontest.adi");
    EXPECT_EQ(std::ranges::count(calls, ' '), 24);
    for (const char* file : {"maerzcontest.adx", "maerzcontest.cbr", "maerzcontest.edi"}) {
        EXPECT_EQ(callsOf(file), calls) << file;
    }
}

using Distance = Tool;

TEST_F(Distance, IsThatOfTheCentresOfTheLocators) {
    EXPECT_EQ(run("tallyrig distance jo62qm JN58").output, "478 km\n");
    const Ran sameSquare = run("tallyrig distance JO62 JO62 --json");
    EXPECT_EQ(nlohmann::json::parse(sameSquare.output),
              (nlohmann::json{{"greatCircleKm", 0}, {"distanceKm", 0}}));
    const Ran bad = run("tallyrig distance JO62 Berlin");
    EXPECT_EQ(bad.status, 2);
    EXPECT_EQ(bad.output, "");
    EXPECT_NE(bad.complaint.find("Berlin"), std::string::npos) << bad.complaint;
}

TEST_F(Failure, NamesWhatIsWrongWithTheCall) {
    const struct {
        std::string call;
        std::string complaint;
    } cases[] = {
        {"", "Es fehlt der Befehl (Hilfe: tallyrig --help)"},
        {"zeige x", "Unbekannter Befehl: zeige (Hilfe: tallyrig --help)"},
        {"dump", "Es fehlt: FILE (Hilfe: tallyrig dump --help)"},
        {"dump a b", "Unbekannte Angabe: b (Hilfe: tallyrig dump --help)"},
        {"check --no-bands a", "Unbekannte Angabe: --no-bands (Hilfe: tallyrig check --help)"},
        {"check --duplicates band a",
         "--duplicates: band ist keines von call_band_mode, call_band, call_band_mode_date, call "
         "(Hilfe: tallyrig check --help)"},
        {"convert a", "Es fehlt: --to (Hilfe: tallyrig convert --help)"},
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
    };
    for (const auto& [call, complaint] : cases) {
        const Ran ran = run("tallyrig " + call);
        EXPECT_EQ(ran.status, 2) << call;
        EXPECT_EQ(ran.output, "") << call;
        EXPECT_EQ(ran.complaint, "tallyrig: " + complaint + "\n");
    }
}

TEST_F(Failure, NamesWhyAFileCannotBeRead) {
    const struct {
        std::string arguments;
        std::string complaint;
    } cases[] = {
        {"fehlt.adi", "fehlt.adi: Die Datei existiert nicht."},
        {"Examples", "Examples: Das ist ein Ordner und keine Datei."},
        {"- <&-", "-: Die Standardeingabe konnte nicht gelesen werden: Sie ist geschlossen."},
        {"- <.", "-: Die Standardeingabe konnte nicht gelesen werden: Das ist ein Ordner und keine Datei."},
        {"'\x1b[31m.adi'", "␛[31m.adi: Die Datei existiert nicht."},
    };
    for (const auto& [arguments, complaint] : cases) {
        for (const std::string command : {"dump ", "check ", "convert --to adi "}) {
            const Ran ran = run("tallyrig " + command + arguments);
            EXPECT_EQ(ran.status, 2) << command << arguments;
            EXPECT_EQ(ran.output, "") << command << arguments;
            EXPECT_EQ(ran.complaint, "tallyrig: " + complaint + "\n");
        }
    }
    EXPECT_EQ(run("tallyrig check - -", oddLog).complaint,
              "tallyrig: -: Die Standardeingabe kann nur einmal gelesen werden.\n");
}

TEST_F(Failure, OfTheOutputIsNotPassedOver) {
    for (const std::string command : {"dump", "dump --json", "check", "check --json", "convert --to adi"}) {
        for (const std::string file : {"vereinsabend.adi", "jahreslog.adi"}) {
            for (const std::string redirection : {" >/dev/full", " >&-"}) {
                const std::string call = "tallyrig " + command + " Examples/" + file + redirection;
                const Ran ran = run(call);
                EXPECT_EQ(ran.status, 2) << call;
                EXPECT_TRUE(ran.complaint.starts_with(
                    "tallyrig: Die Standardausgabe konnte nicht geschrieben werden: "))
                    << call << ": " << ran.complaint;
            }
        }
    }
    run("{ tallyrig dump Examples/jahreslog.adi; echo $? >status; } | :");
    EXPECT_EQ(read("status"), "2\n");
    EXPECT_EQ(run("tallyrig --help >/dev/full").status, 2);
}

using Help = Tool;

TEST_F(Help, ShowsExamplesThatRun) {
    std::size_t examples = 0;
    for (const std::string page : {"", "dump ", "check ", "convert ", "distance "}) {
        const Ran help = run("tallyrig " + page + "--help");
        EXPECT_EQ(help.status, 0) << page;
        EXPECT_EQ(help.complaint, "") << page;
        for (const std::string& line : linesOf(help.output)) {
            if (line.starts_with("  tallyrig ")) {
                ++examples;
                EXPECT_LT(run(line).status, 2) << line;
            }
        }
    }
    EXPECT_EQ(examples, 7);
}

TEST_F(Help, NamesTheVersion) {
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
    EXPECT_EQ(commands, 9);
}

}  // namespace
