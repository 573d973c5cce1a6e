// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/RecordChanges.h"

#include "Quillon/Support/LogText.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

using tallyrig::ADIFRecord;
using tallyrig::ADIFRecordList;

/// The positions in `after` of the records that changed, and the name of the field.
std::string changes(const ADIFRecordList& before, const ADIFRecordList& after) {
    const RecordChanges found = changesBetween(before, after);
    std::string text;
    for (const tallyrig::UUID id : found.records) {
        text += std::to_string(after.indexOf(id).value()) + " ";
    }
    return text + found.fieldName;
}

TEST(ChangesBetweenLogs, NameTheRecordsAndTheFirstFieldThatDiffers) {
    const ADIFRecordList before = testing::recordsOf({"CALL=A", "CALL=B BAND=1 X=1", "CALL=C"});
    ADIFRecordList after = before;
    EXPECT_EQ(changes(before, after), "");
    after.modify(1, [](ADIFRecord& record) { record.set("BAND", "2"); });
    EXPECT_EQ(changes(before, after), "1 BAND");
    after.modify(1, [](ADIFRecord& record) { record.removeField("BAND"); });
    EXPECT_EQ(changes(before, after), "1 BAND") << "gone";
    EXPECT_EQ(changes(after, before), "1 BAND") << "come";
    after.modify(2, [](ADIFRecord& record) { record.set("X", "2"); });
    EXPECT_EQ(changes(before, after), "1 2 BAND");
    after.removeIf([&](const ADIFRecord& record) { return record.id() != before[1].id(); });
    EXPECT_EQ(changes(before, after), "0 BAND");
    EXPECT_EQ(changes(after, before), "0 1 2 ") << "the first of them is new";
}

}  // namespace
}  // namespace quillon
