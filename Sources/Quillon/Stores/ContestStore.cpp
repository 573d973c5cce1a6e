// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/ContestStore.h"

#include <utility>

namespace quillon {

std::span<const ContestStore::Changes::Property> ContestStore::observedProperties() {
    static const Changes::Property properties[] = {
        {Changes::differ<&Observed::pane>, &ContestStore::paneChanged},
        {Changes::differ<&Observed::contest>, &ContestStore::contestChanged},
        {Changes::differ<&Observed::ownStation>, &ContestStore::ownStationChanged},
        {Changes::differ<&Observed::genericContest>, &ContestStore::genericContestChanged},
    };
    return properties;
}

void ContestStore::setPane(Pane pane) {
    const Changes::Operation operation(changes);
    state.pane = pane;
}

void ContestStore::setContest(Contest contest) {
    const Changes::Operation operation(changes);
    state.contest = contest;
}

void ContestStore::setOwnStation(OwnStation ownStation) {
    const Changes::Operation operation(changes);
    state.ownStation = std::move(ownStation);
}

void ContestStore::setGenericContest(GenericContest form) {
    const Changes::Operation operation(changes);
    state.genericContest = std::move(form);
}

tallyrig::ContestRules ContestStore::rules(const tallyrig::ContestStation& station) const {
    return rulesOf(state.contest, state.genericContest, station);
}

}  // namespace quillon
