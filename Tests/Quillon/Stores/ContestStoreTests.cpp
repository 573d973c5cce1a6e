// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/ContestStore.h"

#include "Quillon/Support/SignalCounter.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(ContestStore, BeginsWithASwissStationInTheFirstContest) {
    const ContestStore store;
    EXPECT_EQ(store.pane(), ContestStore::Pane::score);
    EXPECT_EQ(store.contest(), Contest::helvetia);
    EXPECT_EQ(store.station(), (tallyrig::ContestStation{"287", "EU", "14", "28", "JN47"}));
}

TEST(ContestStore, TellsEachChangeOnceAndOnlyChanges) {
    ContestStore store;
    testing::SignalCounter told(store);
    store.setContest(Contest::generic);
    store.setContest(Contest::generic);
    EXPECT_EQ(told.sent(), "contest");
    OwnStation own = store.ownStation();
    store.setOwnStation(own);
    EXPECT_EQ(told.sent(), "");
    own.myDXCC = "230";
    store.setOwnStation(own);
    EXPECT_EQ(told.sent(), "ownStation");
    GenericContest form = store.genericContest();
    form.contestName = "Fuchsjagd";
    store.setGenericContest(form);
    store.setPane(ContestStore::Pane::crossCheck);
    EXPECT_EQ(told.sent(), "genericContest pane");
}

TEST(ContestStore, GivesTheChosenRulesForAnyStation) {
    ContestStore store;
    store.setContest(Contest::wag);
    EXPECT_EQ(store.rules(store.station()).name, "WAG (mit DL)");
    EXPECT_EQ(store.rules({.dxcc = "230"}).name, "WAG (DL-Sicht)") << "also one that is not the own";
    GenericContest form;
    form.contestName = "Fuchsjagd";
    store.setGenericContest(form);
    store.setContest(Contest::generic);
    EXPECT_EQ(store.rules({}).name, "Fuchsjagd");
}

}  // namespace
}  // namespace quillon
