// SPDX-License-Identifier: GPL-3.0-or-later
// Compares the whole of a log with its second half and counts what is in it: both give what the rules say
// when they are followed word by word, with a map and without any short cut.

#include "Fuzz/Require.h"
#include "Tallyrig/Analysis/ADIFComparator.h"
#include "Tallyrig/Analysis/ADIFStatistics.h"
#include "Tallyrig/Log/ADIFParser.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

using namespace tallyrig;

namespace {

/// The values by canonical name, each without blanks around it, the first of a name.
std::map<std::string, std::string> valuesOf(const ADIFRecord& record) {
    std::map<std::string, std::string> values;
    for (const ADIFFieldView& field : record.fields()) {
        values.try_emplace(text::canonicalKey(field.name),
                           text::canonicalKey(text::trimmedOfBlanks(field.value)));
    }
    return values;
}

std::vector<std::string> differingFields(const ADIFRecord& left, const ADIFRecord& right) {
    auto leftValues = valuesOf(left);
    auto rightValues = valuesOf(right);
    std::set<std::string> names;
    for (const auto* values : {&leftValues, &rightValues}) {
        for (const auto& [name, value] : *values) {
            names.insert(name);
        }
    }
    std::vector<std::string> differing;
    for (const std::string& name : names) {
        if (leftValues[name] != rightValues[name]) {
            differing.push_back(name);
        }
    }
    return differing;
}

void requireIsAsByTheRules(const ADIFComparator& comparator, const ADIFDocument& left,
                           const ADIFDocument& right) {
    std::map<std::string, std::deque<std::size_t>> waiting;
    std::set<std::size_t> unpaired;
    for (std::size_t index = 0; index < right.records().size(); ++index) {
        waiting[text::canonicalKey(comparator.key(right.records()[index]))].push_back(index);
        unpaired.insert(index);
    }
    const ADIFComparison comparison = comparator.compare(left, right);
    std::size_t row = 0;
    for (const ADIFRecord& record : left.records()) {
        std::deque<std::size_t>& queue = waiting[text::canonicalKey(comparator.key(record))];
        const auto partner = queue.empty() ? std::nullopt : std::optional(queue.front());
        require(comparison.row(row).left() == row && comparison.row(row).right() == partner,
                "records of a key are paired in order of appearance");
        const auto names = comparison.row(row++).differingFields();
        if (partner) {
            const auto differing = differingFields(record, right.records()[*partner]);
            require(std::ranges::equal(names, differing, text::equal), "a row names what differs");
            queue.pop_front();
            unpaired.erase(*partner);
        }
    }
    for (const std::size_t index : unpaired) {
        require(comparison.row(row++).right() == index, "what has no partner follows in its order");
    }
    require(comparison.rowCount() == row, "there are no other rows");
}

/// What `values` gives for each record, counted; nothing where that is empty.
template <typename Read>
std::map<std::string, std::size_t> counted(const ADIFDocument& document, std::string_view field, Read read) {
    std::map<std::string, std::size_t> counts;
    for (const ADIFRecord& record : document.records()) {
        if (const std::string value = read(record.valueOrEmpty(field)); !value.empty()) {
            ++counts[text::canonicalKey(value)];
        }
    }
    return counts;
}

std::map<std::string, std::size_t> mapOf(const std::vector<ADIFStatistics::Bucket>& buckets) {
    std::map<std::string, std::size_t> counts;
    for (const ADIFStatistics::Bucket& bucket : buckets) {
        require(counts.emplace(bucket.label, bucket.count).second, "a label stands in a table once");
    }
    return counts;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string_view input(reinterpret_cast<const char*>(bytes), size);
    const ADIFDocument whole = ADIFParser::parse(input);
    const ADIFDocument half = ADIFParser::parse(input.substr(size / 2));
    for (const ADIFComparator& comparator : {ADIFComparator({"CALL", "QSO_DATE", "TIME_ON", "BAND", "MODE"}),
                                             ADIFComparator({"BAND", "CALL"})}) {
        requireIsAsByTheRules(comparator, whole, half);
        requireIsAsByTheRules(comparator, half, whole);
        require(comparator.compare(whole, whole).differences().empty(), "a log is equal to itself");
    }

    const ADIFStatistics statistics(whole);
    const auto upper = [](std::string_view value) { return text::upper(text::trimmed(value)); };
    const auto lower = [](std::string_view value) { return text::lower(text::trimmed(value)); };
    const auto call = [](std::string_view value) { return text::upper(text::trimmedOfBlanks(value)); };
    require(statistics.uniqueCalls == counted(whole, "CALL", call).size(), "each call counts once");
    require(mapOf(statistics.byBand) == counted(whole, "BAND", lower), "bands are counted in lower case");
    require(mapOf(statistics.byMode) == counted(whole, "MODE", upper), "modes are counted in upper case");
    return 0;
}
