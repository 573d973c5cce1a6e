// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Catalogue/Contests.h"
#include "Quillon/Catalogue/OwnStation.h"
#include "Tallyrig/Contest/ContestRules.h"
#include "Tallyrig/Contest/ContestStation.h"

#include <string>

namespace CLI {
class App;
}

namespace tallyrig::tool {

/// What a command is told of the contest and of the own station.
struct ContestOptions {
    std::string contest;  ///< The raw value; has been found to be one when a command runs.
    quillon::OwnStation station;

    /// Adds the options. `name` is that of the contest's own: "--contest", or "CONTEST" for a positional.
    void addTo(CLI::App& usage, const std::string& name);

    quillon::Contest chosen() const;
    /// The own station, as well-formed text.
    ContestStation ownStation() const;
    ContestRules rules() const { return rules(ownStation()); }
    /// The same for another station.
    ContestRules rules(const ContestStation& ofStation) const;
};

}  // namespace tallyrig::tool
