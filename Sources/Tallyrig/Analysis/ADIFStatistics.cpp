// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Analysis/ADIFStatistics.h"

#include "Tallyrig/Analysis/CallCounter.h"
#include "Tallyrig/Analysis/DayCounter.h"
#include "Tallyrig/Analysis/ValueCounts.h"
#include "Tallyrig/Log/RecordValues.h"
#include "Tallyrig/Text/KeyNumbers.h"
#include "Tallyrig/Text/Text.h"
#include "Tallyrig/Validation/ADIFSpec317.h"

#include <algorithm>
#include <limits>
#include <string_view>
#include <utility>

namespace tallyrig {

namespace {

using Bucket = ADIFStatistics::Bucket;

/// A bucket for each label that is not empty, in the order of their first appearance. `labelOf` gives that of
/// a value.
template <typename LabelOf>
std::vector<Bucket> buckets(const ValueCounts& counts, LabelOf labelOf) {
    std::vector<Bucket> result;
    KeyNumbers labels(counts.entries().size());
    for (const auto& [value, count] : counts.entries()) {
        const std::string label = text::canonicalKey(labelOf(text::trimmed(value)));
        if (label.empty()) {
            continue;
        }
        const KeyNumbers::Entry entry = labels.add(label);
        if (entry.isNew) {
            result.push_back({label, 0});
        }
        result[entry.number].count += count;
    }
    return result;
}

std::string asIs(std::string_view value) {
    return std::string(value);
}

/// MHz; more than any band has for what is no band.
double lowerEdge(const std::string& band) {
    const BandRange* const range = ADIFSpec::bandFrequencies().find(text::upper(band));
    return range != nullptr ? range->lower : std::numeric_limits<double>::max();
}

// Labels are composed, and the bytes of such texts are in text order.

std::vector<Bucket> byCount(std::vector<Bucket> buckets) {
    std::ranges::sort(buckets, [](const Bucket& left, const Bucket& right) {
        return left.count != right.count ? left.count > right.count : left.label < right.label;
    });
    return buckets;
}

std::vector<Bucket> byFrequency(std::vector<Bucket> buckets) {
    std::vector<std::pair<double, Bucket>> ranked;
    ranked.reserve(buckets.size());
    for (Bucket& bucket : buckets) {
        const double edge = lowerEdge(bucket.label);
        ranked.emplace_back(edge, std::move(bucket));
    }
    std::ranges::sort(ranked, [](const auto& left, const auto& right) {
        return left.first != right.first ? left.first < right.first : left.second.label < right.second.label;
    });
    std::ranges::transform(ranked, buckets.begin(), [](auto& entry) { return std::move(entry.second); });
    return buckets;
}

ValueCounts countsOf(const ADIFRecordList& records, std::string_view field) {
    ValueCounts counts;
    RecordValues values{field};
    for (const ADIFRecord& record : records) {
        values.read(record);
        counts.add(values.valueOrEmpty(0));
    }
    return counts;
}

}  // namespace

ADIFStatistics::ADIFStatistics(const ADIFDocument& document) : total(document.records().size()) {
    enum Field : std::size_t { call, band, mode, date, country };
    RecordValues values{"CALL", "BAND", "MODE", "QSO_DATE", "COUNTRY"};
    CallCounter calls(total);
    ValueCounts bands;
    ValueCounts modes;
    DayCounter days;
    ValueCounts countries;
    for (const ADIFRecord& record : document.records()) {
        values.read(record);
        if (const std::string_view written = text::trimmedOfBlanks(values.valueOrEmpty(call));
            !written.empty()) {
            calls.add(written);
        }
        bands.add(values.valueOrEmpty(band));
        modes.add(values.valueOrEmpty(mode));
        days.add(values.valueOrEmpty(date));
        countries.add(values.valueOrEmpty(country));
    }
    uniqueCalls = calls.count();
    byBand = byFrequency(buckets(bands, text::lower));
    const auto upper = [](std::string_view value) { return text::upper(value); };
    byMode = byCount(buckets(modes, upper));
    byDay = days.buckets();
    if (!byDay.empty()) {
        firstDate = byDay.front().label;
        lastDate = byDay.back().label;
    }
    byCountry = byCount(buckets(countries, upper));
    if (byCountry.empty()) {
        byCountry = byCount(buckets(countsOf(document.records(), "DXCC"), asIs));
    }
}

}  // namespace tallyrig
