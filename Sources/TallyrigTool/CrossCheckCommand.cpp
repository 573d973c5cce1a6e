// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Catalogue/CrossCheckWords.h"
#include "Quillon/Catalogue/LogWriters.h"
#include "Quillon/Catalogue/ScoreWords.h"
#include "Quillon/Platform/Files/LogFiles.h"
#include "Quillon/Platform/Files/ReportFolder.h"
#include "Quillon/Platform/NaturalOrder.h"
#include "Tallyrig/Adjudication/CrossCheckReportWriter.h"
#include "Tallyrig/Adjudication/CrossCheckScoring.h"
#include "Tallyrig/CrossCheck/ContestCrossChecker.h"
#include "Tallyrig/CrossCheck/LogWork.h"
#include "Tallyrig/Text/Decoding.h"
#include "Tallyrig/Text/Text.h"
#include "Tallyrig/Validation/ADIFValidator.h"
#include "TallyrigTool/Commands.h"
#include "TallyrigTool/ContestOptions.h"
#include "TallyrigTool/CrossCheckJson.h"
#include "TallyrigTool/LogFile.h"
#include "TallyrigTool/Progress.h"
#include "TallyrigTool/TextTable.h"
#include "TallyrigTool/Usage.h"

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <ctime>
#include <functional>
#include <iterator>
#include <memory>
#include <numeric>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace tallyrig::tool {

namespace {

using quillon::ScoreWords;

struct Options : ContestOptions {
    std::vector<std::string> paths;
    std::int64_t tolerance = CrossCheckOptions().timeToleranceMinutes;
    bool hasNoMode = false;
    bool hasNoExchange = false;
    bool hasRST = false;
    bool keepsBustedExchange = false;
    std::int64_t nilPenalty = 0;
    std::int64_t bustedPenalty = 0;
    bool hasNoScoring = false;
    std::string evaluator;
    std::string reports;
    std::string date;
    std::size_t threads = 0;
    bool asJson = false;

    CrossCheckOptions checkOptions() const {
        CrossCheckOptions result;
        result.timeToleranceMinutes = tolerance;
        result.extendedToleranceMinutes = std::max(tolerance, result.extendedToleranceMinutes);
        result.compareMode = !hasNoMode;
        result.checkExchange = !hasNoExchange;
        result.checkRST = hasRST;
        return result;
    }
};

/// All that a run finds out.
struct Evaluation {
    std::vector<CrossCheckLog> logs;
    CrossCheckReport report;
    CrossCheckScores scores;
};

std::string checkedDate(const std::string& date) {
    const bool isDate = date.size() == 10 && date[4] == '-' && date[7] == '-' &&
                        ADIFValidator::isValidDate(date.substr(0, 4) + date.substr(5, 2) + date.substr(8));
    return isDate ? "" : date + " ist kein Datum der Form JJJJ-MM-TT";
}

std::string today() {
    constexpr std::size_t size = sizeof "YYYY-MM-DD";
    const std::time_t now = std::time(nullptr);
    std::tm local = {};
    ::localtime_r(&now, &local);
    std::array<char, size> text = {};
    return {text.data(), std::strftime(text.data(), text.size(), "%Y-%m-%d", &local)};
}

/// What tells how much of `what` is done; the work outlives it.
std::function<std::string()> shareDone(std::string what, const LogWork& work) {
    return [what = std::move(what), &work] {
        return fmt::format("{} … {} %", what, static_cast<int>(work.progress() * 100));
    };
}

/// The files that are meant, folders replaced by the logs in them.
std::vector<std::string> filesOf(const std::vector<std::string>& paths) {
    std::vector<std::string> files;
    for (const std::string& path : paths) {
        if (path == "-" || !quillon::isFolder(path)) {
            files.push_back(path);
            continue;
        }
        auto listed = quillon::logFilesIn(path);
        if (const auto* const error = std::get_if<quillon::FileError>(&listed)) {
            throw Failure{path + ": " + error->message};
        }
        std::ranges::move(std::get<std::vector<std::string>>(listed), std::back_inserter(files));
    }
    return files;
}

/// In the natural order of the owners, as the window shows them.
std::vector<CrossCheckLog> sortedByOwner(std::vector<CrossCheckLog> logs) {
    std::vector<std::string_view> owners;
    for (const CrossCheckLog& log : logs) {
        owners.push_back(log.owner);
    }
    const auto ranks = quillon::NaturalOrder::ranks(owners);
    std::vector<std::size_t> order(logs.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::stable_sort(order, {}, [&](std::size_t log) { return ranks[log]; });
    std::vector<CrossCheckLog> sorted;
    for (const std::size_t log : order) {
        sorted.push_back(std::move(logs[log]));
    }
    return sorted;
}

void complainOfSkipped(std::size_t read, const std::vector<std::string>& skipped) {
    constexpr std::size_t mostNames = 5;
    if (skipped.empty()) {
        return;
    }
    std::string names;
    for (std::size_t name = 0; name < std::min(skipped.size(), mostNames); ++name) {
        names += (name == 0 ? "" : ", ") + skipped[name];
    }
    complain(fmt::format("{} Log(s) geladen, {} übersprungen (keine QSOs): {}{}", read, skipped.size(), names,
                         skipped.size() > mostNames ? " …" : ""));
}

std::vector<CrossCheckLog> readLogs(const Options& options) {
    std::vector<std::string> files = filesOf(options.paths);
    std::vector<CrossCheckLog> logs;
    std::vector<std::string> skipped;
    const auto add = [&](const std::string& file, ADIFDocument document, std::string owner) {
        if (document.records().empty()) {
            skipped.push_back(quillon::fileName(file));
        } else {
            logs.emplace_back(UUID::fresh(), quillon::fileName(file), std::move(document), owner);
        }
    };
    if (std::erase(files, "-") > 0) {
        ADIFDocument document = readLog("-").document;
        const std::string owner = CrossCheckLog::detectOwner(document).value_or(std::string());
        add("-", std::move(document), owner);
    }
    LogWork work(options.threads);
    const Progress progress([&work] { return quillon::readingText(work); });
    std::vector<quillon::LoadedLog> loaded =
        quillon::readLogs(files, work).value_or(std::vector<quillon::LoadedLog>());
    for (std::size_t file = 0; file < loaded.size(); ++file) {
        if (loaded[file].error) {
            throw Failure{files[file] + ": " + loaded[file].error->message};
        }
        add(files[file], std::move(loaded[file].document), std::move(loaded[file].owner));
    }
    complainOfSkipped(logs.size(), skipped);
    return sortedByOwner(std::move(logs));
}

Evaluation evaluated(const Options& options) {
    Evaluation evaluation;
    evaluation.logs = readLogs(options);
    if (evaluation.logs.size() < 2) {
        throw Failure{"Mindestens zwei Logs sind nötig."};
    }
    {
        LogWork work(options.threads);
        const Progress progress(shareDone("Cross-Check", work));
        evaluation.report = ContestCrossChecker(options.checkOptions())
                                .check(evaluation.logs, work)
                                .value_or(CrossCheckReport());
    }
    if (!options.hasNoScoring) {
        LogWork work(options.threads);
        const Progress progress(shareDone("Wertung", work));
        const CrossCheckPenalties penalties = {!options.keepsBustedExchange, options.nilPenalty,
                                               options.bustedPenalty};
        const auto rules = [&](const ContestStation& station) { return options.rules(station); };
        evaluation.scores =
            crossCheckScores(evaluation.logs, evaluation.report, penalties, options.ownStation(), rules, work)
                .value_or(CrossCheckScores());
    }
    return evaluation;
}

std::string number(std::size_t count) {
    return ScoreWords::number(static_cast<std::int64_t>(count));
}

std::string rankingTable(const std::vector<CrossCheckEntry>& ranking, bool isScored) {
    std::vector<TableRow> rows = {{"Rang", "Rufzeichen", "QSOs", "Quote", "bestätigt", "NIL", "Busted Call",
                                   "Busted Exchange", "Zeit/Band", "Unique", "ohne Log"}};
    if (isScored) {
        rows.front().insert(rows.front().end(), {"gemeldet", "geprüft"});
    }
    for (const CrossCheckEntry& entry : ranking) {
        const auto count = [&](CrossCheckStatus status) { return number(entry.counts.count(status)); };
        TableRow row = {std::to_string(entry.rank),
                        entry.owner.empty() ? "(Inhaber unbekannt)" : visible(entry.owner),
                        number(entry.counts.total()),
                        quillon::quotaText(entry.counts.accuracy()),
                        count(CrossCheckStatus::confirmed),
                        count(CrossCheckStatus::notInLog),
                        count(CrossCheckStatus::bustedCall),
                        count(CrossCheckStatus::bustedExchange),
                        number(entry.counts.count(CrossCheckStatus::timeMismatch) +
                               entry.counts.count(CrossCheckStatus::bandModeMismatch)),
                        count(CrossCheckStatus::unique),
                        count(CrossCheckStatus::notCheckable)};
        if (isScored) {
            row.push_back(entry.claimed ? ScoreWords::number(*entry.claimed) : "–");
            row.push_back(entry.checked ? ScoreWords::number(*entry.checked) : "–");
        }
        rows.push_back(std::move(row));
    }
    return textTable(rows, "rlrrrrrrrrrrr");
}

/// What there is to say of the QSOs of a log that are not simply confirmed.
std::string problems(const CrossCheckLog& log, std::span<const CrossCheckFinding> findings) {
    std::vector<TableRow> rows;
    for (const CrossCheckFinding& finding : findings) {
        if (finding.status == CrossCheckStatus::confirmed && finding.notes.empty()) {
            continue;
        }
        const ADIFRecord& record = log.document.records()[finding.index];
        const auto shown = [](std::string_view value) { return value.empty() ? "—" : visible(value); };
        rows.push_back({"  Zeile", std::to_string(finding.index + 1),
                        shown(text::trimmed(record.valueOrEmpty("TIME_ON"))),
                        shown(text::trimmed(record.valueOrEmpty("BAND"))), shown(finding.call),
                        std::string(quillon::label(finding.status))});
        if (!finding.notes.empty()) {
            rows.back().push_back(visible(fmt::format("{}", fmt::join(finding.notes, " · "))));
        }
    }
    const std::string owner = log.owner.empty() ? "(Inhaber unbekannt)" : visible(log.owner);
    const std::string head = "\n" + owner + ", " + visible(log.name);
    return rows.empty() ? head + ": keine Auffälligkeiten\n"
                        : head + ": " + number(rows.size()) + " von " + number(findings.size()) + " QSOs\n" +
                              textTable(rows, "lrl");
}

void writeText(Output& output, const std::string& contestName, const Evaluation& evaluation,
               const std::vector<CrossCheckEntry>& ranking) {
    output.write(visible(contestName) + ": " + number(evaluation.logs.size()) + " Logs\n\n" +
                 rankingTable(ranking, !evaluation.scores.empty()));
    for (const CrossCheckLog& log : evaluation.logs) {
        output.write(problems(log, evaluation.report.findings(log.id)));
    }
}

void writeReports(const Options& options, const std::string& contestName,
                  const CrossCheckReportWriter& writer, const std::string& date) {
    LogWork work(options.threads);
    std::optional<std::variant<quillon::ReportFolder, quillon::FileError>> written;
    {
        const Progress progress(shareDone("Berichte schreiben", work));
        written = quillon::writeReports(writer, options.reports, quillon::reportFolderName(contestName, date),
                                        work);
    }
    if (written && std::holds_alternative<quillon::FileError>(*written)) {
        throw Failure{options.reports + ": " + std::get<quillon::FileError>(*written).message};
    }
    if (written) {
        const auto& folder = std::get<quillon::ReportFolder>(*written);
        complain(fmt::format("{} Dateien in «{}» geschrieben.", folder.files, folder.path));
    }
}

ExitStatus run(const Options& options, Output& output) {
    const Evaluation evaluation = evaluated(options);
    const std::string contestName = options.rules().name;
    const std::string date = options.date.empty() ? today() : options.date;
    const CrossCheckReportWriter writer(
        evaluation.report, evaluation.logs, evaluation.scores,
        {contestName, std::string(text::trimmed(text::repaired(options.evaluator))), options.tolerance,
         "Quillon " + std::string(quillon::programVersion()), date});
    if (!options.reports.empty()) {
        writeReports(options, contestName, writer, date);
    }
    if (options.asJson) {
        writeJson(output, contestName, evaluation.logs, evaluation.report, evaluation.scores,
                  writer.ranking());
    } else {
        writeText(output, contestName, evaluation, writer.ranking());
    }
    const bool hasErrors =
        std::ranges::any_of(evaluation.report.summaries(),
                            [](const CrossCheckSummary& summary) { return summary.counts.errors() > 0; });
    return hasErrors ? ExitStatus::findings : ExitStatus::good;
}

/// A whole number from 0 to `most`.
CLI::Validator upTo(std::int64_t most) {
    return {[most](const std::string& value) {
                std::int64_t number = -1;
                return CLI::detail::lexical_cast(value, number) && number >= 0 && number <= most
                           ? std::string()
                           : value + " ist keine Zahl von 0 bis " + std::to_string(most);
            },
            ""};
}

}  // namespace

Command crossCheckCommand(CLI::App& program) {
    constexpr std::int64_t longestTolerance = 1440;
    constexpr std::int64_t highestPenalty = 100;
    constexpr std::int64_t mostThreads = 1024;
    CLI::App& usage =
        addCommand(program, "crosscheck", "Vergleicht die Logs eines Contests miteinander und wertet sie.",
                   "tallyrig crosscheck logs/ --contest cqWW --tolerance 5 --reports berichte/");
    const auto options = std::make_shared<Options>();
    options->contest = quillon::rawValue(quillon::Contest::helvetia);
    usage.add_option("FILE", options->paths, "Logs oder Ordner mit Logs; - liest die Standardeingabe")
        ->required();
    options->addTo(usage, "--contest");
    usage.get_option("--contest")->required(false);
    usage.add_option("--tolerance", options->tolerance, "Größte Zeitdifferenz in Minuten, sonst 5")
        ->type_name("N")
        ->check(upTo(longestTolerance));
    usage.add_flag("--no-mode", options->hasNoMode, "Vergleicht die Betriebsart nicht");
    usage.add_flag("--no-exchange", options->hasNoExchange, "Vergleicht den Austausch nicht");
    usage.add_flag("--rst", options->hasRST, "Vergleicht auch den Rapport");
    usage.add_flag("--keep-busted-exchange", options->keepsBustedExchange,
                   "Wertet QSOs mit falschem Austausch");
    const auto addPenalty = [&](const std::string& name, std::int64_t& factor, const std::string& what) {
        usage.add_option(name, factor, "Strafe je " + what + " als Vielfaches der QSO-Punkte, sonst 0")
            ->type_name("N")
            ->check(upTo(highestPenalty));
    };
    addPenalty("--nil-penalty", options->nilPenalty, "NIL");
    addPenalty("--busted-penalty", options->bustedPenalty, "Busted Call oder Busted Exchange");
    usage.add_flag("--no-scoring", options->hasNoScoring, "Berechnet keine Punkte");
    usage.add_option("--evaluator", options->evaluator, "Wer auswertet: Rufzeichen oder Name")
        ->type_name("TEXT");
    usage.add_option("--reports", options->reports, "Schreibt die Berichte in einen neuen Ordner in diesem")
        ->type_name("DIR");
    usage.add_option("--date", options->date, "Datum der Auswertung, sonst heute")
        ->type_name("JJJJ-MM-TT")
        ->check(CLI::Validator(checkedDate, ""));
    usage.add_option("--threads", options->threads, "Höchstens so viele Threads, sonst einen je Kern")
        ->type_name("N")
        ->check(upTo(mostThreads));
    usage.add_flag("--json", options->asJson, "Gibt ein JSON-Dokument aus");
    return {&usage, [options](Output& output) { return run(*options, output); }};
}

}  // namespace tallyrig::tool
