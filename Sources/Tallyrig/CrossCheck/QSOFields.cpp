// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/CrossCheck/QSOFields.h"

#include "Tallyrig/Text/Text.h"

#include <algorithm>

namespace tallyrig {

namespace {

constexpr std::array<std::string_view, qsoFieldCount> names = {
    "CALL", "BAND",     "MODE",       "QSO_DATE",   "TIME_ON", "STATION_CALLSIGN", "SRX_STRING",
    "SRX",  "RST_RCVD", "GRIDSQUARE", "STX_STRING", "STX",     "RST_SENT",         "MY_GRIDSQUARE"};

}  // namespace

QSOFields::Table QSOFields::tableOf(const FieldTags& tags) {
    Table table(tags.size());
    for (std::size_t number = 0; number < tags.size(); ++number) {
        const std::string& tagName = tags[static_cast<FieldTags::Number>(number)].name;
        const auto name =
            std::ranges::find_if(names, [&](std::string_view known) { return text::equal(known, tagName); });
        table[number] = static_cast<std::uint16_t>(name - names.begin());
    }
    return table;
}

void QSOFields::read(const RecordStorage& record, QSOValues& values) const {
    if (areAllExpected || expects(record)) {
        read(record, *table, values);
    } else {
        read(record, tableOf(record.tags()), values);
    }
}

void QSOFields::read(const RecordStorage& record, const Table& fields, QSOValues& values) {
    values.values.fill({});
    // Of several fields of one name the first counts, even if it is empty.
    std::uint32_t seen = std::uint32_t{1} << qsoFieldCount;
    for (std::size_t index = 0; index < record.fieldCount(); ++index) {
        const std::uint16_t field = fields[record.tagNumber(index)];
        const std::uint32_t bit = std::uint32_t{1} << field;
        if ((seen & bit) == 0) {
            seen |= bit;
            values.values[field] = record.value(index);
        }
    }
}

}  // namespace tallyrig
