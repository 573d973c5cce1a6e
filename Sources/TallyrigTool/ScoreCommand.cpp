// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Catalogue/ScoreWords.h"
#include "Tallyrig/Contest/ContestChecker.h"
#include "Tallyrig/Text/Text.h"
#include "TallyrigTool/Commands.h"
#include "TallyrigTool/ContestOptions.h"
#include "TallyrigTool/LogFile.h"
#include "TallyrigTool/ScoreJson.h"
#include "TallyrigTool/TextTable.h"
#include "TallyrigTool/Usage.h"

#include <CLI/CLI.hpp>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tallyrig::tool {

namespace {

using quillon::ScoreWords;

struct Options : ContestOptions {
    std::string file;
    bool asJson = false;
};

std::string figures(const ContestScore& score) {
    const auto number = [](std::size_t count) {
        return ScoreWords::number(static_cast<std::int64_t>(count));
    };
    return textTable({{"QSOs gesamt", number(score.totalQSOs)},
                      {"gewertet", number(score.countedQSOs)},
                      {"Dubletten", number(score.dupeQSOs)},
                      {"ungültig", number(score.invalidQSOs)},
                      {"QSO-Punkte", ScoreWords::number(score.qsoPoints)},
                      {"Multiplikatoren", ScoreWords::number(score.multiplierCount)}},
                     "lr");
}

std::string multipliers(const ContestScore& score) {
    std::vector<TableRow> rows;
    for (const ContestScore::Breakdown& multiplier : score.multiplierBreakdown) {
        rows.push_back({"  " + visible(multiplier.name), ScoreWords::number(multiplier.count)});
    }
    return rows.empty() ? "" : "\nMultiplikatoren\n" + textTable(rows, "lr");
}

/// The QSOs that do not count, with the reasons.
std::string notCounted(const ContestScore& score, const ADIFDocument& log) {
    std::vector<TableRow> rows;
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
                              ")\n" + textTable(rows, "lr");
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
    if (options.asJson) {
        writeJson(output, score);
        output.write("\n");
    } else {
        writeText(output, log, score);
    }
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
