// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Catalogue/ScoreWords.h"
#include "Quillon/Catalogue/StatisticsWords.h"
#include "Tallyrig/Analysis/ADIFStatistics.h"
#include "Tallyrig/Text/Characters.h"
#include "TallyrigTool/Commands.h"
#include "TallyrigTool/LogFile.h"
#include "TallyrigTool/TextTable.h"
#include "TallyrigTool/Usage.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tallyrig::tool {

namespace {

using quillon::StatisticsWords;
using Json = nlohmann::ordered_json;
using Buckets = std::vector<ADIFStatistics::Bucket>;

struct Options {
    std::string file;
    bool asJson = false;
};

Json jsonOf(const Buckets& buckets) {
    Json list = Json::array();
    for (const ADIFStatistics::Bucket& bucket : buckets) {
        list.push_back({{"label", bucket.label}, {"count", bucket.count}});
    }
    return list;
}

void writeJson(Output& output, const ADIFStatistics& statistics) {
    const auto orNull = [](const std::optional<std::string>& date) { return date ? Json(*date) : Json(); };
    const Json json = {{"total", statistics.total},
                       {"uniqueCalls", statistics.uniqueCalls},
                       {"firstDate", orNull(statistics.firstDate)},
                       {"lastDate", orNull(statistics.lastDate)},
                       {"byBand", jsonOf(statistics.byBand)},
                       {"byMode", jsonOf(statistics.byMode)},
                       {"byDay", jsonOf(statistics.byDay)},
                       {"byCountry", jsonOf(statistics.byCountry)}};
    output.write(json.dump() + "\n");
}

std::string number(std::size_t count) {
    return quillon::ScoreWords::number(static_cast<std::int64_t>(count));
}

/// A bar for `count`, as long as 40 characters for `largest`, to an eighth of a character; never quite empty.
std::string bar(std::size_t count, std::size_t largest) {
    constexpr std::array<std::string_view, 8> parts = {"", "▏", "▎", "▍", "▌", "▋", "▊", "▉"};
    constexpr double length = 40.0 * parts.size();
    const double share = static_cast<double>(count) / static_cast<double>(largest);
    const std::size_t eighths = std::max<std::size_t>(static_cast<std::size_t>(share * length + 0.5), 1);
    std::string text;
    for (std::size_t full = 0; full < eighths / parts.size(); ++full) {
        text += "█";
    }
    return text.append(parts[eighths % parts.size()]);
}

/// The first buckets as bars, and how many there are beside them. Empty if there are none.
std::string chart(const std::string& title, const Buckets& buckets, std::size_t most) {
    if (buckets.empty()) {
        return {};
    }
    const std::size_t shown = std::min(buckets.size(), most);
    const auto end = buckets.begin() + static_cast<std::ptrdiff_t>(shown);
    const std::size_t largest =
        std::max_element(buckets.begin(), end, [](const auto& left, const auto& right) {
            return left.count < right.count;
        })->count;
    std::vector<TableRow> rows;
    for (auto bucket = buckets.begin(); bucket != end; ++bucket) {
        rows.push_back({"  " + visible(bucket->label), number(bucket->count), bar(bucket->count, largest)});
    }
    std::string text = "\n" + title + "\n" + textTable(rows, "lr");
    if (shown < buckets.size()) {
        text += "  und " + number(buckets.size() - shown) + " weitere\n";
    }
    return text;
}

/// The days by what their labels begin with, `length` characters of them.
Buckets grouped(const Buckets& days, std::size_t length) {
    Buckets groups;
    for (const ADIFStatistics::Bucket& day : days) {
        const std::string_view label = text::firstCharacters(day.label, length);
        if (groups.empty() || groups.back().label != label) {
            groups.push_back({std::string(label), 0});
        }
        groups.back().count += day.count;
    }
    return groups;
}

/// By day, month or year, the finest of them that a person can overlook.
std::string course(const Buckets& days) {
    constexpr std::size_t yearLength = 4;
    constexpr std::size_t monthLength = 6;
    constexpr std::size_t most = 36;
    if (days.size() <= most) {
        Buckets shown = days;
        for (ADIFStatistics::Bucket& day : shown) {
            day.label = StatisticsWords::day(day.label);
        }
        return chart("QSOs pro Tag", shown, most);
    }
    Buckets months = grouped(days, monthLength);
    if (months.size() > most) {
        // The labels go beyond a lifetime only in a log full of slips.
        constexpr std::size_t mostYears = 100;
        return chart("QSOs pro Jahr", grouped(days, yearLength), mostYears);
    }
    for (ADIFStatistics::Bucket& month : months) {
        if (StatisticsWords::dayOf(month.label + "01")) {
            month.label = month.label.substr(yearLength) + "." + month.label.substr(0, yearLength);
        }
    }
    return chart("QSOs pro Monat", months, most);
}

void writeText(Output& output, const LogFile& log, const ADIFStatistics& statistics) {
    constexpr std::size_t mostValues = 40;
    constexpr std::size_t mostCountries = 15;
    const std::string period = StatisticsWords::period(statistics);
    output.write(visible(log.argument) + ": " + number(statistics.total) +
                 (statistics.total == 1 ? " QSO, " : " QSOs, ") + number(statistics.uniqueCalls) +
                 " Rufzeichen\n" + (period.empty() ? "" : period + "\n") +
                 chart("QSOs pro Band", statistics.byBand, mostValues) +
                 chart("QSOs pro Modus", statistics.byMode, mostValues) + course(statistics.byDay) +
                 chart("Top-Länder", statistics.byCountry, mostCountries));
}

}  // namespace

Command statsCommand(CLI::App& program) {
    CLI::App& usage =
        addCommand(program, "stats", "Zählt die QSOs eines Logs nach Band, Modus, Tag und Land.",
                   "tallyrig stats Examples/jahreslog.adi\n\n"
                   "Ein langer Zeitraum wird nach Monaten oder Jahren zusammengefasst, und von den\n"
                   "Ländern stehen die häufigsten da; --json nennt jeden Tag und jedes Land.");
    const auto options = std::make_shared<Options>();
    usage.add_option("FILE", options->file, "Das Log; - liest die Standardeingabe")->required();
    usage.add_flag("--json", options->asJson, "Gibt ein JSON-Dokument aus");
    return {&usage, [options](Output& output) {
                const LogFile log = readLog(options->file);
                const ADIFStatistics statistics(log.document);
                options->asJson ? writeJson(output, statistics) : writeText(output, log, statistics);
                return ExitStatus::good;
            }};
}

}  // namespace tallyrig::tool
