// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Contest/ContestTemplates.h"

#include "Tallyrig/Geography/RegionCodes.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <string>
#include <utility>

namespace tallyrig {

using namespace relation;
using namespace points;

namespace {

constexpr std::array<std::string_view, 6> hf6 = {"160M", "80M", "40M", "20M", "15M", "10M"};
constexpr std::array<std::string_view, 5> hf5 = {"80M", "40M", "20M", "15M", "10M"};
constexpr std::array<std::string_view, 7> ukw7 = {"2M", "70CM", "23CM", "13CM", "9CM", "6CM", "3CM"};
constexpr std::array<std::string_view, 6> uhf6 = {"70CM", "23CM", "13CM", "9CM", "6CM", "3CM"};

constexpr std::array<std::string_view, 2> usaAndCanada = {"291", "1"};

/// Kilometres between the locators and nothing else.
ContestRules vhfDistanceOnly(std::string_view name, const UpperTextSet& bands,
                             const std::optional<UpperTextSet>& modes, const ContestStation& station) {
    return {
        .name = std::string(name),
        .station = station,
        .bands = bands,
        .modes = modes,
        .requiredFields = {"CALL", "GRIDSQUARE", "SRX"},
        .dupeFields = {"CALL", "BAND"},
        .points = DistanceKmIaru{"MY_GRIDSQUARE", "GRIDSQUARE"},
    };
}

ContestRules renamed(ContestRules rules, std::string_view name) {
    rules.name = name;
    return rules;
}

ContestRules withBands(ContestRules rules, std::string_view name, const UpperTextSet& bands) {
    rules.name = name;
    rules.bands = bands;
    return rules;
}

}  // namespace

ContestRules ContestTemplates::helvetia(const ContestStation& station) {
    return {
        .name = "Helvetia",
        .station = station,
        .bands = hf6,
        .requiredFields = {"CALL"},
        .dupeFields = {"CALL", "BAND", "MODE"},
        .points = ByRelation{{
            {WorkedCountryIs{"287"}, 10},
            {SameContinent{}, 1},
            {DifferentContinent{}, 3},
        }},
        .multipliers =
            {
                {.name = "Kantone",
                 .field = "SRX_STRING",
                 .fallbackFields = {"STATE", "SRX"},
                 .allowedValues = swissCantons,
                 .perBand = true},
                {.name = "DXCC-Länder", .field = "DXCC", .perBand = true},
            },
    };
}

ContestRules ContestTemplates::uskaXmas(const ContestStation& station) {
    return {
        .name = "USKA Weihnachtswettbewerb",
        .station = station,
        .bands = UpperTextSet{"80M", "40M"},
        .requiredFields = {"CALL"},
        .dupeFields = {"CALL", "BAND", "MODE"},
        .validRelation = WorkedCountryIs{"287"},
        .points = Fixed{1},
        .multipliers = {{.name = "Kantone",
                         .field = "SRX_STRING",
                         .fallbackFields = {"STATE", "SRX"},
                         .allowedValues = swissCantons,
                         .perBand = true}},
    };
}

ContestRules ContestTemplates::fieldDay(const ContestStation& station) {
    return {
        .name = "USKA Field Day",
        .station = station,
        .bands = hf6,
        .requiredFields = {"CALL"},
        .dupeFields = {"CALL", "BAND"},
        .points = ByRelation{{
            {And{{IsPortable{}, SameContinent{}}}, 4},
            {And{{IsPortable{}, DifferentContinent{}}}, 6},
            {SameContinent{}, 2},
            {DifferentContinent{}, 3},
        }},
        .multipliers = {{.name = "DXCC/WAE", .field = "DXCC", .perBand = true}},
    };
}

ContestRules ContestTemplates::nmd(const ContestStation& station) {
    return {
        .name = "NMD – National Mountain Day",
        .station = station,
        .bands = UpperTextSet{"80M"},
        .requiredFields = {"CALL"},
        .dupeFields = {"CALL", "BAND", "MODE"},
        .points = ByRelation{{
            {IsPortable{}, 4},
            {Any{}, 1},
        }},
    };
}

ContestRules ContestTemplates::iaruHF(const ContestStation& station) {
    return {
        .name = "IARU HF – ITU-Zonen",
        .station = station,
        .requiredFields = {"CALL", "ITUZ"},
        .dupeFields = {"CALL", "BAND", "MODE"},
        .points = ByRelation{{
            {SameItuZone{}, 1},
            {SameContinent{}, 3},
            {DifferentContinent{}, 5},
        }},
        .multipliers = {{.name = "ITU-Zonen", .field = "ITUZ", .perBand = true}},
    };
}

ContestRules ContestTemplates::waeDX(const ContestStation& station) {
    return {
        .name = "WAE DX – interkontinental",
        .station = station,
        .requiredFields = {"CALL", "SRX"},
        .dupeFields = {"CALL", "BAND"},
        .validRelation = DifferentContinent{},
        .points = Fixed{1},
        .multipliers = {{.name = "Länder",
                         .field = "DXCC",
                         .perBand = true,
                         .bandWeights =
                             UpperTextMap<std::int64_t>{
                                 {"80M", 4}, {"40M", 3}, {"20M", 2}, {"15M", 2}, {"10M", 2}}}},
    };
}

ContestRules ContestTemplates::wag(const ContestStation& station) {
    if (text::equal(station.dxcc, "230")) {
        return {
            .name = "WAG (DL-Sicht)",
            .station = station,
            .requiredFields = {"CALL"},
            .dupeFields = {"CALL", "BAND", "MODE"},
            .points = ByRelation{{
                {SameCountry{}, 1},
                {SameContinent{}, 3},
                {DifferentContinent{}, 5},
            }},
            .multipliers = {{.name = "DXCC/WAE", .field = "DXCC", .perBand = true, .perMode = true}},
        };
    }
    return {
        .name = "WAG (mit DL)",
        .station = station,
        .requiredFields = {"CALL"},
        .dupeFields = {"CALL", "BAND", "MODE"},
        .validRelation = WorkedCountryIs{"230"},
        .points = Fixed{3},
        .multipliers = {{.name = "DL-Distrikte",
                         .field = "DOK",
                         .fallbackFields = {"SRX_STRING", "SRX"},
                         .perBand = true,
                         .perMode = true,
                         .token = MultiplierToken::last}},
    };
}

ContestRules ContestTemplates::cqWW(const ContestStation& station) {
    return {
        .name = "CQ WW DX",
        .station = station,
        .bands = hf6,
        .requiredFields = {"CALL", "CQZ"},
        .dupeFields = {"CALL", "BAND"},
        .points = ByRelation{{
            {SameCountry{}, 0},
            {BothInContinent{"NA"}, 2},
            {SameContinent{}, 1},
            {DifferentContinent{}, 3},
        }},
        .multipliers =
            {
                {.name = "CQ-Zonen", .field = "CQZ", .perBand = true},
                {.name = "Länder", .field = "DXCC", .perBand = true},
            },
    };
}

ContestRules ContestTemplates::cqWWRtty(const ContestStation& station) {
    return {
        .name = "CQ WW RTTY",
        .station = station,
        .bands = hf6,
        .requiredFields = {"CALL", "CQZ"},
        .dupeFields = {"CALL", "BAND"},
        .points = ByRelation{{
            {SameCountry{}, 1},
            {SameContinent{}, 2},
            {DifferentContinent{}, 3},
        }},
        .multipliers =
            {
                {.name = "CQ-Zonen", .field = "CQZ", .perBand = true},
                {.name = "Länder", .field = "DXCC", .perBand = true},
                {.name = "W/VE-Staaten",
                 .field = "STATE",
                 .fallbackFields = {"SRX_STRING"},
                 .allowedValues = usStatesAndVEProvinces,
                 .perBand = true},
            },
    };
}

ContestRules ContestTemplates::cqWPX(const ContestStation& station) {
    return {
        .name = "CQ WPX",
        .station = station,
        .bands = hf6,
        .requiredFields = {"CALL", "SRX"},
        .dupeFields = {"CALL", "BAND"},
        .points = ByRelation{{
            {SameCountry{}, 1},
            {BothInContinent{"NA"}, 2, TextMap<std::int64_t>{{"high", 2}, {"low", 4}}},
            {SameContinent{}, 1, TextMap<std::int64_t>{{"high", 1}, {"low", 2}}},
            {DifferentContinent{}, 3, TextMap<std::int64_t>{{"high", 3}, {"low", 6}}},
        }},
        .multipliers = {{.name = "Präfixe", .kind = MultiplierKind::wpxPrefix}},
        .bandGroups = UpperTextMap<std::string>{{"10M", "high"},
                                                {"15M", "high"},
                                                {"20M", "high"},
                                                {"40M", "low"},
                                                {"80M", "low"},
                                                {"160M", "low"}},
    };
}

ContestRules ContestTemplates::cqWPXRtty(const ContestStation& station) {
    return renamed(cqWPX(station), "CQ WPX RTTY");
}

ContestRules ContestTemplates::arrlDX(const ContestStation& station) {
    if (TextSet(usaAndCanada).contains(station.dxcc)) {
        return {
            .name = "ARRL DX (W/VE-Sicht)",
            .station = station,
            .bands = hf6,
            .requiredFields = {"CALL"},
            .dupeFields = {"CALL", "BAND"},
            .validRelation = WorkedCountryNotIn{usaAndCanada},
            .points = Fixed{3},
            .multipliers = {{.name = "DXCC-Gebiete", .field = "DXCC", .perBand = true}},
        };
    }
    return {
        .name = "ARRL DX",
        .station = station,
        .bands = hf6,
        .requiredFields = {"CALL"},
        .dupeFields = {"CALL", "BAND"},
        .validRelation = WorkedCountryIn{usaAndCanada},
        .points = Fixed{3},
        .multipliers = {{.name = "Staaten/Provinzen",
                         .field = "STATE",
                         .fallbackFields = {"SRX_STRING"},
                         .allowedValues = usStatesAndVEProvinces,
                         .perBand = true}},
    };
}

ContestRules ContestTemplates::euHFChampionship(const ContestStation& station) {
    return {
        .name = "EU HF Championship",
        .station = station,
        .bands = hf5,
        .requiredFields = {"CALL"},
        .dupeFields = {"CALL", "BAND", "MODE"},
        .points = Fixed{1},
        .multipliers = {{.name = "Lizenzjahre",
                         .field = "SRX_STRING",
                         .fallbackFields = {"SRX", "APP_N1MM_EXCHANGE1"},
                         .perBand = true,
                         .token = MultiplierToken::last}},
    };
}

ContestRules ContestTemplates::ref(const ContestStation& station) {
    return {
        .name = "REF (Coupe du REF)",
        .station = station,
        .bands = hf6,
        .requiredFields = {"CALL"},
        .dupeFields = {"CALL", "BAND"},
        .validRelation = WorkedCountryIn{{"227", "214"}},
        .points = ByRelation{{
            {SameContinent{}, 1},
            {DifferentContinent{}, 3},
        }},
        .multipliers = {{.name = "Departemente",
                         .field = "SRX_STRING",
                         .fallbackFields = {"STATE", "SRX"},
                         .perBand = true,
                         .token = MultiplierToken::last}},
    };
}

ContestRules ContestTemplates::sac(const ContestStation& station) {
    return {
        .name = "SAC (Scandinavian Activity)",
        .station = station,
        .bands = hf5,
        .requiredFields = {"CALL"},
        .dupeFields = {"CALL", "BAND"},
        .validRelation = WorkedCountryIn{scandinavianDXCC},
        .points = ByRelation{{
            {SameContinent{}, 1},
            {DifferentContinent{}, 1, TextMap<std::int64_t>{{"high", 1}, {"low", 3}}},
        }},
        .multipliers = {{.name = "Rufgebiete", .kind = MultiplierKind::callAreaPerDxcc, .perBand = true}},
        .bandGroups =
            UpperTextMap<std::string>{
                {"10M", "high"}, {"15M", "high"}, {"20M", "high"}, {"40M", "low"}, {"80M", "low"}},
    };
}

ContestRules ContestTemplates::eucwUFT(const ContestStation& station) {
    return {
        .name = "EUCW / UFT (CW)",
        .station = station,
        .bands = hf6,
        .requiredFields = {"CALL"},
        .dupeFields = {"CALL", "BAND"},
        .points = ByRelation{{
            {SameCountry{}, 1},
            {SameContinent{}, 2},
            {DifferentContinent{}, 5},
        }},
        .multipliers = {{.name = "EUCW-Clubs",
                         .field = "SRX_STRING",
                         .fallbackFields = {"APP_EUCW_CLUB"},
                         .perBand = true,
                         .token = MultiplierToken::last}},
    };
}

ContestRules ContestTemplates::aaDX(const ContestStation& station) {
    return {
        .name = "All Asian DX",
        .station = station,
        .bands = hf6,
        .requiredFields = {"CALL"},
        .dupeFields = {"CALL", "BAND"},
        .validRelation = WorkedContinentIs{"AS"},
        .points = PerBand{{{"160M", 3}, {"80M", 2}, {"10M", 2}}, 1},
        .multipliers = {{.name = "Asiatische Präfixe", .kind = MultiplierKind::wpxPrefix, .perBand = true}},
    };
}

ContestRules ContestTemplates::jidx(const ContestStation& station) {
    return {
        .name = "JIDX",
        .station = station,
        .bands = hf6,
        .requiredFields = {"CALL"},
        .dupeFields = {"CALL", "BAND"},
        .validRelation = WorkedCountryIn{japaneseDXCC},
        .points = PerBand{{{"160M", 4}, {"80M", 2}, {"10M", 2}}, 1},
        .multipliers = {{.name = "Präfekturen",
                         .field = "SRX",
                         .fallbackFields = {"SRX_STRING"},
                         .perBand = true,
                         .token = MultiplierToken::last}},
    };
}

ContestRules ContestTemplates::russianDX(const ContestStation& station) {
    return {
        .name = "Russian DX",
        .station = station,
        .bands = hf6,
        .requiredFields = {"CALL"},
        .dupeFields = {"CALL", "BAND", "MODE"},
        .points = ByRelation{{
            {WorkedCountryIn{russianDXCC}, 10},
            {SameCountry{}, 2},
            {SameContinent{}, 3},
            {DifferentContinent{}, 5},
        }},
        .multipliers =
            {
                {.name = "Oblaste",
                 .field = "SRX_STRING",
                 .fallbackFields = {"STATE"},
                 .perBand = true,
                 .token = MultiplierToken::last,
                 .alphabeticOnly = true},
                {.name = "Länder", .field = "DXCC", .perBand = true},
            },
    };
}

ContestRules ContestTemplates::arrlRTTYRoundup(const ContestStation& station) {
    return {
        .name = "ARRL RTTY Roundup",
        .station = station,
        .bands = hf5,
        .requiredFields = {"CALL"},
        .dupeFields = {"CALL", "BAND"},
        .points = Fixed{1},
        .multipliers =
            {
                {.name = "Staaten/Provinzen",
                 .field = "STATE",
                 .fallbackFields = {"SRX_STRING"},
                 .allowedValues = usStatesAndVEProvinces},
                {.name = "Länder", .field = "DXCC", .excludedValues = usaAndCanada},
            },
    };
}

ContestRules ContestTemplates::swissEmergency(const ContestStation& station) {
    return {
        .name = "Swiss Emergency Contest",
        .station = station,
        .bands = UpperTextSet{"80M", "40M", "2M", "70CM"},
        .requiredFields = {"CALL"},
        .dupeFields = {"CALL", "BAND"},
        .dupeBands = UpperTextSet{"80M", "40M"},
        .points = Fixed{1},
        .multipliers = {{.name = "PLZ",
                         .field = "HIS_ZIP",
                         .fallbackFields = {"SRX_STRING", "STATE", "SRX"},
                         .perBand = true,
                         .token = MultiplierToken::last}},
        .scorePerBand = true,
    };
}

ContestRules ContestTemplates::darc10m(const ContestStation& station) {
    return {
        .name = "DARC 10m-Contest",
        .station = station,
        .bands = UpperTextSet{"10M"},
        .requiredFields = {"CALL"},
        .dupeFields = {"CALL", "BAND", "MODE"},
        .points = Fixed{1},
        .multipliers =
            {
                {.name = "DXCC/WAE", .field = "DXCC", .perMode = true},
                {.name = "DOK",
                 .field = "DOK",
                 .fallbackFields = {"SRX_STRING", "SRX"},
                 .excludedValues = UpperTextSet{"NM"},
                 .perMode = true,
                 .token = MultiplierToken::last,
                 .mustContainLetter = true},
            },
    };
}

ContestRules ContestTemplates::mhz50(const ContestStation& station) {
    return {
        .name = "50 MHz (6 m) – IARU R1",
        .station = station,
        .bands = UpperTextSet{"6M"},
        .requiredFields = {"CALL", "GRIDSQUARE", "SRX"},
        .dupeFields = {"CALL", "BAND"},
        .points = DistanceKmIaru{"MY_GRIDSQUARE", "GRIDSQUARE"},
    };
}

ContestRules ContestTemplates::iaruVHFUHF(const ContestStation& station) {
    return {
        .name = "IARU R1 VHF/UHF",
        .station = station,
        .bands = ukw7,
        .requiredFields = {"CALL", "GRIDSQUARE", "SRX"},
        .dupeFields = {"CALL", "BAND"},
        .points = DistanceKmIaru{"MY_GRIDSQUARE", "GRIDSQUARE"},
        .multipliers = {{.name = "Großfelder", .field = "GRIDSQUARE", .perBand = true, .prefixLength = 4}},
    };
}

ContestRules ContestTemplates::iaruR1VHF(const ContestStation& station) {
    return withBands(iaruVHFUHF(station), "IARU R1 VHF (144 MHz)", {"2M"});
}

ContestRules ContestTemplates::iaruR1UHF(const ContestStation& station) {
    return withBands(iaruVHFUHF(station), "IARU R1 UHF/Mikrowelle", uhf6);
}

ContestRules ContestTemplates::darcUKW(const ContestStation& station) {
    return withBands(iaruVHFUHF(station), "DARC UKW-Contest",
                     {"6M", "2M", "70CM", "23CM", "13CM", "9CM", "6CM", "3CM"});
}

ContestRules ContestTemplates::helvetiaVHF(const ContestStation& station) {
    return withBands(iaruVHFUHF(station), "Helvetia VHF/UHF/Microwaves",
                     {"2M", "70CM", "23CM", "13CM", "9CM", "6CM", "3CM", "1.25CM", "6MM", "4MM", "2.5MM"});
}

ContestRules ContestTemplates::marconiVHF(const ContestStation& station) {
    return vhfDistanceOnly("Marconi Memorial (144 MHz CW)", {"2M"}, UpperTextSet{"CW"}, station);
}

ContestRules ContestTemplates::agcwVHFUHF(const ContestStation& station) {
    return vhfDistanceOnly("AGCW VHF/UHF (CW)", {"2M", "70CM"}, UpperTextSet{"CW"}, station);
}

ContestRules ContestTemplates::alpeAdriaVHF(const ContestStation& station) {
    return vhfDistanceOnly("Alpe-Adria VHF", {"2M"}, std::nullopt, station);
}

ContestRules ContestTemplates::alpeAdriaUHF(const ContestStation& station) {
    return vhfDistanceOnly("Alpe-Adria UHF/SHF", uhf6, std::nullopt, station);
}

ContestRules ContestTemplates::vhfDistance(const ContestStation& station) {
    return {
        .name = "UKW – Distanz (km)",
        .station = station,
        .requiredFields = {"CALL", "GRIDSQUARE"},
        .dupeFields = {"CALL", "BAND"},
        .points = DistanceKm{"MY_GRIDSQUARE", "GRIDSQUARE"},
        .multipliers = {{.name = "Großfelder", .field = "GRIDSQUARE", .perBand = true, .prefixLength = 4}},
    };
}

ContestRules ContestTemplates::genericOnePointDXCC(const ContestStation& station) {
    return {
        .name = "Allgemein – 1 Punkt/QSO, DXCC-Multi",
        .station = station,
        .requiredFields = {"CALL"},
        .dupeFields = {"CALL", "BAND"},
        .points = Fixed{1},
        .multipliers = {{.name = "DXCC-Gebiete", .field = "DXCC"}},
    };
}

std::optional<ContestRules> ContestTemplates::forTemplateID(std::string_view id,
                                                            const ContestStation& station) {
    using Template = ContestRules (*)(const ContestStation&);
    static constexpr std::pair<std::string_view, Template> templates[] = {
        {"HELVETIA", helvetia},
        {"HELVETIA-VHF", helvetiaVHF},
        {"USKA-FD-CW", fieldDay},
        {"USKA-FD-SSB", fieldDay},
        {"USKA-50M", mhz50},
        {"USKA-XMAS", uskaXmas},
        {"USKA-NMD", nmd},
        {"SEC", swissEmergency},
        {"USKA-SEC", swissEmergency},
        {"CQ-WW-CW", cqWW},
        {"CQ-WW-SSB", cqWW},
        {"CQ-WW-RTTY", cqWWRtty},
        {"CQ-WPX-CW", cqWPX},
        {"CQ-WPX-SSB", cqWPX},
        {"CQ-WPX-RTTY", cqWPXRtty},
        {"IARU-HF", iaruHF},
        {"DARC-WAG", wag},
        {"DARC-10M", darc10m},
        {"DARC-UKW", darcUKW},
        {"ARRL-DX-CW", arrlDX},
        {"ARRL-DX-SSB", arrlDX},
        {"ARRL-RTTY-RU", arrlRTTYRoundup},
        {"WAE-DX-CW", waeDX},
        {"WAE-DX-SSB", waeDX},
        {"AA-DX-CW", aaDX},
        {"AA-DX-SSB", aaDX},
        {"JIDX-CW", jidx},
        {"JIDX-SSB", jidx},
        {"RUS-DX", russianDX},
        {"EU-HF-CHAMP", euHFChampionship},
        {"REF-CW", ref},
        {"REF-SSB", ref},
        {"SAC-CW", sac},
        {"SAC-SSB", sac},
        {"EUCW-UFT", eucwUFT},
        {"IARU-R1-VHF", iaruR1VHF},
        {"IARU-R1-UHF", iaruR1UHF},
        {"MARCONI-VHF", marconiVHF},
        {"AGCW-VHF", agcwVHFUHF},
        {"ALPE-ADRIA-VHF", alpeAdriaVHF},
        {"ALPE-ADRIA-UHF", alpeAdriaUHF},
    };
    const std::string key = text::canonicalKey(text::upper(id));
    const auto row = std::ranges::find(templates, key, &std::pair<std::string_view, Template>::first);
    return row == std::end(templates) ? std::nullopt : std::optional(row->second(station));
}

}  // namespace tallyrig
