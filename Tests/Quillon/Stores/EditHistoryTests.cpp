// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/EditHistory.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace quillon {
namespace {

EditHistory::Snapshot named(const std::string& name) {
    return {{}, {name}, false};
}

std::string nameOf(const std::optional<EditHistory::Snapshot>& snapshot) {
    return snapshot ? snapshot->columns.front() : "(none)";
}

TEST(EditHistory, LeadsBackAndForthUntilTheNextEdit) {
    EditHistory history;
    history.commit(named("a"));
    history.commit(named("b"));
    EXPECT_EQ(nameOf(history.undo(named("c"))), "b");
    EXPECT_EQ(nameOf(history.undo(named("b"))), "a");
    EXPECT_EQ(nameOf(history.undo(named("a"))), "(none)");
    EXPECT_EQ(nameOf(*history.beforeLatestStep()), "b");
    EXPECT_EQ(nameOf(history.redo(named("a"))), "b");
    EXPECT_EQ(nameOf(*history.beforeLatestStep()), "a");
    history.commit(named("b"));
    EXPECT_EQ(history.beforeLatestStep(), nullptr);
    EXPECT_EQ(nameOf(history.redo(named("d"))), "(none)");
    EXPECT_EQ(nameOf(history.undo(named("d"))), "b");
}

/// What its steps bring back, from the latest to the oldest.
std::vector<std::string> undone(EditHistory history) {
    std::vector<std::string> names;
    while (history.canUndo()) {
        names.push_back(nameOf(history.undo(named("x"))));
    }
    return names;
}

TEST(EditHistory, ForgetsAllBeforeTheLatestHundred) {
    EditHistory history;
    for (int step = 1; step <= 101; ++step) {
        history.commit(named(std::to_string(step)));
    }
    EXPECT_EQ(undone(history).size(), 100U);
    EXPECT_EQ(undone(history).back(), "2");
}

TEST(EditHistory, MakesOneStepOfWhatIsTypedInOnePlace) {
    using Edits = std::vector<std::string>;  // By key; "" for none, "<" for a step back.
    const std::pair<Edits, std::size_t> cases[] = {{{"A", "A", "A"}, 1},      {{"A", "B", "A"}, 3},
                                                   {{"A", "", "A"}, 3},       {{"", ""}, 2},
                                                   {{"A", "<", "A", "A"}, 1}, {{"\xC3\x84", "A\xCC\x88"}, 1}};
    for (const auto& [edits, steps] : cases) {
        EditHistory history;
        for (const std::string& edit : edits) {
            if (edit == "<") {
                history.undo(named("x"));
            } else {
                history.commit(named("x"), edit.empty() ? std::nullopt : std::optional(edit));
            }
        }
        EXPECT_EQ(undone(history).size(), steps) << edits[0] << edits[1];
    }
}

}  // namespace
}  // namespace quillon
