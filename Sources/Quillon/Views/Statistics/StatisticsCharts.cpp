#include "Quillon/Views/Statistics/StatisticsCharts.h"

#include "Quillon/Catalogue/ADIFFieldCatalog.h"
#include "Quillon/Catalogue/BandColors.h"
#include "Quillon/Views/Controls/Strings.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace quillon {

namespace {

constexpr std::size_t mostCountries = 15;

std::vector<ChartEntry> entriesOf(StatisticsCharts::Buckets buckets) {
    std::vector<ChartEntry> entries;
    entries.reserve(buckets.size());
    for (auto& bucket : buckets) {
        entries.push_back({.label = std::move(bucket.label), .count = bucket.count, .day = {}});
    }
    return entries;
}

ChartData columns(const QString& title, const QString& word, StatisticsCharts::Buckets buckets,
                  PaletteColor (*color)(std::string_view)) {
    return {.form = ChartData::Form::columns,
            .title = title,
            .word = word,
            .labelAxis = QStringLiteral("Kategorie"),
            .countAxis = QStringLiteral("QSOs"),
            .entries = entriesOf(std::move(buckets)),
            .color = color};
}

std::string shownDate(const std::string& label) {
    return StatisticsCharts::dayOf(label) ? ADIFFieldCatalog::formatDate(label) : label;
}

}  // namespace

ChartData StatisticsCharts::bands(Buckets byBand) {
    return columns(QStringLiteral("QSOs pro Band"), QStringLiteral("Band"), std::move(byBand),
                   &BandPalette::color);
}

ChartData StatisticsCharts::modes(Buckets byMode) {
    return columns(QStringLiteral("QSOs pro Modus"), QStringLiteral("Modus"), std::move(byMode),
                   &ModePalette::color);
}

ChartData StatisticsCharts::days(const Buckets& byDay) {
    ChartData chart{.form = ChartData::Form::days,
                    .title = QStringLiteral("Verlauf pro Tag"),
                    .word = QStringLiteral("Tag"),
                    .labelAxis = QStringLiteral("Tag"),
                    .countAxis = QStringLiteral("QSOs"),
                    .entries = {},
                    .color = {}};
    chart.entries.reserve(byDay.size());
    for (const auto& bucket : byDay) {
        if (const auto day = dayOf(bucket.label)) {
            chart.entries.push_back(
                {.label = ADIFFieldCatalog::formatDate(bucket.label), .count = bucket.count, .day = *day});
        }
    }
    return chart;
}

ChartData StatisticsCharts::countries(Buckets byCountry) {
    return {.form = ChartData::Form::rows,
            .title = QStringLiteral("Top-Länder"),
            .word = QStringLiteral("Land"),
            .labelAxis = QStringLiteral("Land"),
            .countAxis = QStringLiteral("QSOs"),
            .entries = entriesOf(std::move(byCountry)),
            .mostBars = mostCountries,
            .color = {}};
}

QString StatisticsCharts::period(const tallyrig::ADIFStatistics& statistics) {
    if (!statistics.firstDate) {
        return {};
    }
    const std::string first = shownDate(*statistics.firstDate);
    const std::string last = shownDate(*statistics.lastDate);
    return toQString(first == last ? first : first + " – " + last);
}

std::optional<std::chrono::sys_days> StatisticsCharts::dayOf(std::string_view label) {
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    if (label.size() != 8 || !std::ranges::all_of(label, isDigit)) {
        return std::nullopt;
    }
    const auto number = [label](std::size_t position, std::size_t length) {
        int value = 0;
        std::from_chars(label.data() + position, label.data() + position + length, value);
        return value;
    };
    const std::chrono::year_month_day date(std::chrono::year(number(0, 4)),
                                           std::chrono::month(static_cast<unsigned>(number(4, 2))),
                                           std::chrono::day(static_cast<unsigned>(number(6, 2))));
    return date.ok() ? std::optional<std::chrono::sys_days>(date) : std::nullopt;
}

}  // namespace quillon
