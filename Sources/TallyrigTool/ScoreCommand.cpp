#include "Quillon/Catalogue/ScoreWords.h"
#include "Tallyrig/Contest/ContestChecker.h"
#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/Text.h"
#include "TallyrigTool/Commands.h"
#include "TallyrigTool/ContestOptions.h"
#include "TallyrigTool/JsonList.h"
#include "TallyrigTool/LogFile.h"
#include "TallyrigTool/Usage.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tallyrig::tool {

namespace {

using quillon::ScoreWords;

struct Options : ContestOptions {
    std::string file;
    bool asJson = false;
};

nlohmann::ordered_json jsonOf(const ContestQSOResult& qso) {
    nlohmann::ordered_json json = {{"index", qso.index},       {"points", qso.points},
                                   {"isDupe", qso.isDupe},     {"newMultipliers", qso.newMultipliers},
                                   {"problems", qso.problems}, {"crossCheckRemoval", nullptr}};
    if (qso.crossCheckRemoval) {
        json["crossCheckRemoval"] = nameOf(*qso.crossCheckRemoval);
    }
    return json;
}

void writeJson(Output& output, const ContestScore& score) {
    auto breakdown = nlohmann::ordered_json::array();
    for (const ContestScore::Breakdown& multiplier : score.multiplierBreakdown) {
        breakdown.push_back({{"name", multiplier.name}, {"count", multiplier.count}});
    }
    const nlohmann::ordered_json head = {
        {"contestName", score.contestName},         {"totalQSOs", score.totalQSOs},
        {"countedQSOs", score.countedQSOs},         {"dupeQSOs", score.dupeQSOs},
        {"invalidQSOs", score.invalidQSOs},         {"qsoPoints", score.qsoPoints},
        {"multiplierCount", score.multiplierCount}, {"total", score.total},
        {"multiplierBreakdown", breakdown},         {"removedQSOs", score.removedQSOs},
        {"penaltyPoints", score.penaltyPoints}};
    JsonList results(output, head.dump(), "results");
    for (const ContestQSOResult& qso : score.results) {
        results.add(jsonOf(qso).dump());
    }
    results.finish();
    output.write("\n");
}

using Row = std::vector<std::string>;

/// Lines of columns, each as wide as its widest text of at most 40 characters; the last one is not filled up.
/// `rightColumn` stands on the right of its place.
std::string table(const std::vector<Row>& rows, std::size_t rightColumn) {
    constexpr std::size_t widest = 40;
    std::vector<std::size_t> widths;
    for (const Row& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t column = 0; column < row.size(); ++column) {
            widths[column] = std::max(widths[column], std::min(text::characterCount(row[column]), widest));
        }
    }
    std::string lines;
    for (const Row& row : rows) {
        for (std::size_t column = 0; column < row.size(); ++column) {
            const std::size_t length = text::characterCount(row[column]);
            const std::string fill(widths[column] - std::min(length, widths[column]), ' ');
            const bool isLast = column + 1 == row.size();
            lines += column == rightColumn ? fill + row[column] : row[column] + (isLast ? "" : fill);
            lines += isLast ? "\n" : "  ";
        }
    }
    return lines;
}

std::string figures(const ContestScore& score) {
    const auto number = [](std::size_t count) {
        return ScoreWords::number(static_cast<std::int64_t>(count));
    };
    return table({{"QSOs gesamt", number(score.totalQSOs)},
                  {"gewertet", number(score.countedQSOs)},
                  {"Dubletten", number(score.dupeQSOs)},
                  {"ungültig", number(score.invalidQSOs)},
                  {"QSO-Punkte", ScoreWords::number(score.qsoPoints)},
                  {"Multiplikatoren", ScoreWords::number(score.multiplierCount)}},
                 1);
}

std::string multipliers(const ContestScore& score) {
    std::vector<Row> rows;
    for (const ContestScore::Breakdown& multiplier : score.multiplierBreakdown) {
        rows.push_back({"  " + visible(multiplier.name), ScoreWords::number(multiplier.count)});
    }
    return rows.empty() ? "" : "\nMultiplikatoren\n" + table(rows, 1);
}

/// The QSOs that do not count, with the reasons.
std::string notCounted(const ContestScore& score, const ADIFDocument& log) {
    std::vector<Row> rows;
    for (const ContestQSOResult& qso : score.results) {
        if (qso.isCounted()) {
            continue;
        }
        const ADIFRecord& record = log.records()[qso.index];
        const auto shown = [&](std::string_view field) {
            const std::string_view value = text::trimmed(record.valueOrEmpty(field));
            return value.empty() ? std::string("—") : visible(value);
        };
        rows.push_back({"  Zeile", std::to_string(qso.index + 1), shown("CALL"), shown("BAND"),
                        visible(ScoreWords::reason(qso))});
    }
    return rows.empty() ? "\nAlle QSOs werden gewertet.\n"
                        : "\nNicht gewertet (" + ScoreWords::number(static_cast<std::int64_t>(rows.size())) +
                              ")\n" + table(rows, 1);
}

void writeText(Output& output, const LogFile& log, const ContestScore& score) {
    output.write(visible(log.argument) + ": " + visible(score.contestName) + "\n\n" +
                 ScoreWords::number(score.total) + " Punkte\n" + ScoreWords::formula(score) + "\n\n" +
                 figures(score) + multipliers(score));
    output.write(notCounted(score, log.document));
}

ExitStatus run(const Options& options, Output& output) {
    const LogFile log = readLog(options.file);
    const ContestScore score = ContestChecker(options.rules()).score(log.document);
    options.asJson ? writeJson(output, score) : writeText(output, log, score);
    return score.countedQSOs == score.totalQSOs ? ExitStatus::good : ExitStatus::findings;
}

}  // namespace

Command scoreCommand(CLI::App& program) {
    CLI::App& usage = addCommand(program, "score", "Wertet ein Log nach den Regeln eines Contests.",
                                 "tallyrig score Examples/maerzcontest.adi --contest darcUKW --dxcc 230");
    const auto options = std::make_shared<Options>();
    usage.add_option("FILE", options->file, "Das Log; - liest die Standardeingabe")->required();
    options->addTo(usage, "--contest");
    usage.add_flag("--json", options->asJson, "Gibt ein JSON-Dokument aus");
    return {&usage, [options](Output& output) { return run(*options, output); }};
}

}  // namespace tallyrig::tool
