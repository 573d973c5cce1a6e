#include "Quillon/Stores/ColumnLayout.h"

#include "Quillon/Support/LogText.h"

#include <gtest/gtest.h>

#include <tuple>
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

TEST(ColumnNames, AreCleanedAndThenJudged) {
    const std::tuple<const char*, const char*, bool> cases[] = {
        {"  sota_ref\n", "SOTA_REF", true},
        {"<CALL:5>", "CALL5", true},
        {"1A", "1A", false},
        {" <> ", "", false},
        {"ä", "Ä", false},
        {"A B", "A B", false},
    };
    for (const auto& [typed, cleaned, isValid] : cases) {
        EXPECT_EQ(ColumnLayout::cleanedName(typed), cleaned) << typed;
        EXPECT_EQ(ColumnLayout::isValidName(cleaned), isValid) << typed;
    }
}

TEST(ColumnLayout, AddsOnlyNewAndValidNames) {
    ColumnLayout layout = layoutOf({"CALL"});
    EXPECT_TRUE(layout.add(" sota_ref "));
    for (const char* refused : {"call", "<Sota_Ref>", "1A", ""}) {
        EXPECT_FALSE(layout.add(refused)) << refused;
    }
    layout.append("call");
    layout.append("Ä");
    EXPECT_EQ(namesOf(layout), "CALL SOTA_REF Ä");
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
    EXPECT_EQ(layout.width("CALL_3"), 130);
}

TEST(ColumnLayout, SwapsByAnOffsetAndMovesInFrontOfAColumn) {
    // The target is absent where the offset counts; nothing is expected where nothing happens.
    const std::tuple<const char*, const char*, int, const char*> cases[] = {
        {"a", nullptr, 1, "B A C D"},
        {"A", nullptr, 2, "C B A D"},
        {"A", nullptr, -3, ""},
        {"D", nullptr, 1, ""},
        {"X", nullptr, 1, ""},
        {"D", "a", 0, "D A B C"},
        {"A", "D", 0, "B C A D"},
        {"A", "X", 0, "B C D A"},
        {"A", "a", 0, ""},
        {"X", "A", 0, ""},
    };
    for (const auto& [name, target, offset, expected] : cases) {
        ColumnLayout layout = layoutOf({"A", "B", "C", "D"});
        const bool isMoved =
            target != nullptr ? layout.moveBefore(name, target) : layout.moveBy(name, offset);
        EXPECT_EQ(isMoved, *expected != '\0') << name << offset;
        EXPECT_EQ(namesOf(layout), isMoved ? expected : "A B C D") << name << offset;
    }
}

TEST(ColumnLayout, TakesWidthsFromTheUserOrTheName) {
    ColumnLayout layout;
    for (const auto& [name, width] : {std::pair("qso_date_off", 100), {"SUBMODE", 78}, {"CALL", 130}}) {
        EXPECT_EQ(layout.width(name), width) << name;
    }
    for (const auto& [set, stored] : {std::pair(10.0, 48.0), {123.5, 123.5}, {601.0, 600.0}}) {
        layout.setWidth(set, "call");
        EXPECT_EQ(layout.width("CALL"), stored);
    }
}

}  // namespace
}  // namespace quillon
