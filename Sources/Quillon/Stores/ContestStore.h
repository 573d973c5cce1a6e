// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Catalogue/Contests.h"
#include "Quillon/Catalogue/GenericContest.h"
#include "Quillon/Catalogue/OwnStation.h"
#include "Quillon/Stores/StoreState.h"
#include "Tallyrig/Contest/ContestRules.h"
#include "Tallyrig/Contest/ContestStation.h"

#include <QObject>

#include <span>

namespace quillon {

/// What a log is scored by: the contest chosen, the own station's data and the form of the contest of one's
/// own. It lives as long as the program runs; nothing of it is kept on disk.
///
/// Each property has one change signal, sent when the change is whole and only if the value is another one.
class ContestStore : public QObject {
    Q_OBJECT

  public:
    /// What the work area shows of a contest: the score of the open log, or the logs of many stations against
    /// each other.
    enum class Pane { score, crossCheck };

    explicit ContestStore(QObject* parent = nullptr) : QObject(parent) {}

    Pane pane() const { return state.pane; }
    void setPane(Pane pane);
    Contest contest() const { return state.contest; }
    void setContest(Contest contest);
    const OwnStation& ownStation() const { return state.ownStation; }
    void setOwnStation(OwnStation ownStation);
    /// The form, filled in also while another contest is chosen.
    const GenericContest& genericContest() const { return state.genericContest; }
    void setGenericContest(GenericContest form);

    /// What rules are given of the own station.
    tallyrig::ContestStation station() const { return state.ownStation.station(); }
    /// The rules of the chosen contest for `station`, which need not be the own one. Made anew each time.
    tallyrig::ContestRules rules(const tallyrig::ContestStation& station) const;

  signals:
    void paneChanged();
    void contestChanged();
    void ownStationChanged();
    void genericContestChanged();

  private:
    struct Observed {
        Pane pane = Pane::score;
        Contest contest = Contest::helvetia;
        OwnStation ownStation;
        GenericContest genericContest;
    };
    using Changes = StoreState<ContestStore, Observed>;

    static std::span<const Changes::Property> observedProperties();

    Observed state;
    Changes changes{*this, state, observedProperties()};
};

}  // namespace quillon
