// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Outdoor/OutdoorExporter.h"

#include "Tallyrig/Log/RecordEditor.h"
#include "Tallyrig/Log/RecordValues.h"
#include "Tallyrig/Outdoor/EarliestDate.h"
#include "Tallyrig/Outdoor/ReferenceGroups.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <memory>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

namespace tallyrig {

namespace {

/// The call in the name of a file: a field that is there counts, even if nothing stands in it.
std::string callOf(const ADIFRecord& record) {
    const std::string_view call = record["STATION_CALLSIGN"].value_or(record["OPERATOR"].value_or("UNKNOWN"));
    return text::upper(text::trimmedOfBlanks(call));
}

std::shared_ptr<const ReferenceGroups> groupsOf(const ADIFRecordList& records) {
    auto groups = std::make_shared<ReferenceGroups>();
    RecordValues values({"MY_SIG_INFO"});
    std::size_t index = 0;
    for (const ADIFRecord& record : records) {
        values.read(record);
        forEachReference(values.valueOrEmpty(0),
                         [&](std::string_view reference) { groups->add(index, reference); });
        ++index;
    }
    groups->finish();
    return groups;
}

OutdoorExportFile fileFor(std::string_view reference, const ADIFRecordList& records,
                          std::span<const std::size_t> indices, std::string_view sig,
                          const ADIFWriter& writer, std::string_view createdTimestamp) {
    const FieldName sigField("MY_SIG");
    const FieldName referenceField("MY_SIG_INFO");
    RecordEditor editor;
    EarliestDate date;
    std::vector<ADIFRecord> own;
    own.reserve(indices.size());
    for (const std::size_t index : indices) {
        const ADIFRecord& record = records[index];
        date.add(record.valueOrEmpty("QSO_DATE"));
        // The reference first: a list of them may be long, and need not be copied twice.
        own.push_back(editor.setValue(editor.setValue(record, referenceField, reference), sigField, sig));
    }
    std::string place(reference);
    std::ranges::replace(place, '/', '-');
    ADIFDocument log("", {}, ADIFRecordList(std::move(own)));
    std::string content = writer.write(log, createdTimestamp);
    return {.reference = std::string(reference),
            .filename = callOf(records[indices.front()]) + '@' + place + ' ' + date.text() + ".adi",
            .content = std::move(content),
            .qsoCount = indices.size(),
            .log = std::move(log)};
}

}  // namespace

OutdoorExportFiles OutdoorExporter::files(const ADIFDocument& document, std::string createdTimestamp) const {
    const auto sig = sigValue(program);
    if (!sig) {
        return {};
    }
    const auto groups = groupsOf(document.records());
    return {groups->size(),
            [groups, sig = *sig, log = document, createdTimestamp = std::move(createdTimestamp),
             writer = ADIFWriter{programID, programVersion, adifVersion, true}](std::size_t index) {
                return fileFor(groups->reference(index), log.records(), groups->records(index), sig, writer,
                               createdTimestamp);
            }};
}

}  // namespace tallyrig
