// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Statistics/StatisticsCharts.h"

#include "Quillon/Catalogue/BandColors.h"
#include "Quillon/Catalogue/StatisticsWords.h"
#include "Quillon/Views/Controls/Strings.h"

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
                    .color = {},
                    .nothing = QStringLiteral("Kein Datum im Log ist ein Tag des Kalenders.")};
    chart.entries.reserve(byDay.size());
    for (const auto& bucket : byDay) {
        if (const auto day = StatisticsWords::dayOf(bucket.label)) {
            chart.entries.push_back(
                {.label = StatisticsWords::day(bucket.label), .count = bucket.count, .day = *day});
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

}  // namespace quillon
