// SPDX-License-Identifier: GPL-3.0-or-later
#include "TallyrigTool/ContestOptions.h"

#include "Tallyrig/Text/Decoding.h"

#include <CLI/CLI.hpp>

namespace tallyrig::tool {

namespace {

std::string contestNames() {
    std::string names;
    for (const quillon::Contest contest : quillon::contests) {
        names += (names.empty() ? "" : ", ") + std::string(quillon::rawValue(contest));
    }
    return names;
}

std::string checkedContest(const std::string& name) {
    return quillon::contestNamed(name) ? "" : name + " ist keiner von " + contestNames();
}

}  // namespace

void ContestOptions::addTo(CLI::App& usage, const std::string& name) {
    usage.add_option(name, contest, "Der Contest; tallyrig contests zählt alle auf")
        ->required()
        ->type_name(name == "CONTEST" ? "" : "CONTEST")
        ->check(CLI::Validator(checkedContest, ""));
    const auto add = [&](const std::string& option, std::string& value, const std::string& what) {
        usage.add_option(option, value, "Eigener Standort: " + what + ", sonst " + value)->type_name("WERT");
    };
    add("--dxcc", station.myDXCC, "DXCC-Nummer");
    add("--continent", station.myContinent, "Kontinent");
    add("--cqzone", station.myCQZone, "CQ-Zone");
    add("--ituzone", station.myITUZone, "ITU-Zone");
    add("--grid", station.myGrid, "Locator");
}

quillon::Contest ContestOptions::chosen() const {
    return quillon::contestNamed(contest).value_or(quillon::Contest::generic);
}

ContestStation ContestOptions::ownStation() const {
    // An argument may be any bytes; what is written has to be text.
    ContestStation own = station.station();
    for (std::string* const text : {&own.dxcc, &own.continent, &own.cqZone, &own.ituZone, &own.gridSquare}) {
        *text = text::repaired(*text);
    }
    return own;
}

ContestRules ContestOptions::rules(const ContestStation& ofStation) const {
    return quillon::rulesOf(chosen(), quillon::GenericContest(), ofStation);
}

}  // namespace tallyrig::tool
