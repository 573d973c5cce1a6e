// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/ColumnLayout.h"

#include "Quillon/Support/LogText.h"

#include <gtest/gtest.h>

#include <utility>

namespace quillon {
namespace {

using Renaming = ColumnLayout::Renaming;

ColumnLayout layoutOf(ColumnLayout::Names names) {
    ColumnLayout layout;
    layout.setNames(std::move(names));
    return layout;
}

std::string namesOf(const ColumnLayout& layout) {
    return testing::joined(layout.names());
}

TEST(ColumnLayout, AddsWhatIsANewNameOnceItIsCleaned) {
    ColumnLayout layout = layoutOf({"CALL"});
    EXPECT_TRUE(layout.add("  sota_ref\n"));
    EXPECT_TRUE(layout.add("<X:5>"));
    for (const char* refused : {"1A", " <> ", "ä", "A B", "<call>"}) {
        EXPECT_FALSE(layout.add(refused)) << refused;
    }
    layout.append("call");
    layout.append("Ä");
    EXPECT_EQ(namesOf(layout), "CALL SOTA_REF X5 Ä") << "the last as a file may have it";
}

TEST(ColumnLayout, RenamesInPlaceAndTakesTheWidthAlong) {
    ColumnLayout layout = layoutOf({"CALL", "FREQ", "BAND"});
    layout.setWidth(99, "FREQ");
    EXPECT_EQ(layout.rename("call", "Call"), Renaming::needless);
    EXPECT_EQ(layout.rename("MODE", "MODE"), Renaming::refused);
    EXPECT_EQ(layout.rename("CALL", "band"), Renaming::refused);
    EXPECT_EQ(layout.rename("CALL", "1"), Renaming::refused);
    EXPECT_EQ(layout.rename("freq", " my_freq "), Renaming::done);
    EXPECT_EQ(namesOf(layout), "CALL MY_FREQ BAND");
    EXPECT_EQ(layout.width("my_freq"), 99);
}

TEST(ColumnLayout, DuplicatesDirectlyBehindTheSource) {
    ColumnLayout layout = layoutOf({"CALL", "BAND"});
    layout.setWidth(99, "CALL");
    EXPECT_EQ(layout.duplicate("call"), "CALL_2");
    EXPECT_EQ(layout.duplicate("CALL"), "CALL_3");
    EXPECT_EQ(layout.duplicate("MODE"), std::nullopt);
    EXPECT_EQ(namesOf(layout), "CALL CALL_3 CALL_2 BAND");
    EXPECT_EQ(layout.width("CALL_3"), 99);
    EXPECT_TRUE(layout.remove("call_3"));
    EXPECT_FALSE(layout.remove("CALL_3"));
    EXPECT_EQ(layout.width("CALL_3"), ColumnLayout::defaultWidth("CALL_3"));
}

TEST(ColumnLayout, SwapsByAnOffsetAndMovesInFrontOfAColumn) {
    ColumnLayout layout = layoutOf({"A", "B", "C", "D"});
    EXPECT_TRUE(layout.moveBy("a", 2));
    EXPECT_EQ(namesOf(layout), "C B A D");
    EXPECT_TRUE(layout.moveBefore("d", "c"));
    EXPECT_EQ(namesOf(layout), "D C B A");
    EXPECT_TRUE(layout.moveBefore("D", "a"));
    EXPECT_EQ(namesOf(layout), "C B D A");
    EXPECT_TRUE(layout.moveBefore("C", "X")) << "to the end";
    EXPECT_EQ(namesOf(layout), "B D A C");
    EXPECT_FALSE(layout.moveBy("A", 2) || layout.moveBy("B", -1) || layout.moveBy("X", -1));
    EXPECT_FALSE(layout.moveBefore("A", "a") || layout.moveBefore("X", "A"));
    EXPECT_EQ(namesOf(layout), "B D A C");
}

TEST(ColumnLayout, KeepsWidthsWithinBounds) {
    ColumnLayout layout;
    for (const auto& [set, stored] : {std::pair(10.0, 48.0), {123.5, 123.5}, {601.0, 600.0}}) {
        layout.setWidth(set, "call");
        EXPECT_EQ(layout.width("CALL"), stored);
    }
}

}  // namespace
}  // namespace quillon
