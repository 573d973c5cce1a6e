// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/RowSelection.h"

#include "Quillon/Support/LogText.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <tuple>

namespace quillon {
namespace {

using testing::recordsOf;

class RowSelectionTest : public ::testing::Test {
  protected:
    tallyrig::UUID id(std::size_t index) const { return records[index].id(); }
    /// The positions of the selected records and of the anchor.
    std::string selected() const {
        std::string text;
        for (const std::uint32_t position : selection.positionsIn(records)) {
            text += std::to_string(position);
        }
        const auto anchor = selection.anchor() ? records.indexOf(*selection.anchor()) : std::nullopt;
        return text + ":" + (anchor ? std::to_string(*anchor) : "-");
    }

    tallyrig::ADIFRecordList records = recordsOf({"A=1", "A=1", "A=1", "A=1"});
    RowSelection selection;
};

TEST_F(RowSelectionTest, FollowsTheKeysHeldDownAtAClick) {
    constexpr ClickModifiers plain = {};
    constexpr ClickModifiers command = {.command = true, .shift = false};
    constexpr ClickModifiers shift = {.command = false, .shift = true};
    constexpr ClickModifiers both = {.command = true, .shift = true};
    const std::tuple<std::size_t, ClickModifiers, const char*> clicks[] = {
        {1, shift, "1:1"},                            // without an anchor, as a plain click
        {3, shift, "123:1"},                          // the anchor stays
        {0, shift, "01:1"},                           // to the other side; what was selected is not kept
        {3, command, "013:3"}, {0, command, "13:0"},  // taken out, and yet the anchor
        {2, both, "012:0"},    {1, plain, "1:1"},
    };
    std::uint64_t revision = selection.revision();
    for (const auto& [row, keys, expected] : clicks) {
        selection.click(id(row), keys, {records, nullptr});
        EXPECT_EQ(selected(), expected);
        EXPECT_NE(std::exchange(revision, selection.revision()), selection.revision()) << expected;
    }
}

TEST_F(RowSelectionTest, TakesRangesAsTheyStandOnScreen) {
    const RowsOnScreen::Positions positions = {2, 0, 3};
    const RowsOnScreen rows(records, &positions);
    selection.click(id(2), {}, rows);
    selection.click(id(3), {.command = false, .shift = true}, rows);
    EXPECT_EQ(selected(), "023:2");
    selection.setAnchor(id(1));  // Off screen: as with command alone.
    selection.click(id(2), {.command = true, .shift = true}, rows);
    EXPECT_EQ(selected(), "03:2");
    selection.select({id(0), id(1)});
    EXPECT_EQ(selection.countOutside(rows), 1U);
}

TEST_F(RowSelectionTest, KeepsWhatTheLogStillHolds) {
    for (const std::size_t size : {2U, 100U}) {
        records = recordsOf(std::vector<std::string>(size, "A=1"));
        selection.select({id(1), tallyrig::UUID::fresh()});
        selection.setAnchor(id(0));
        selection.reduceTo(records);
        EXPECT_EQ(selected(), "1:-") << size;
    }
}

}  // namespace
}  // namespace quillon
