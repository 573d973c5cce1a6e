// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Outdoor/OutdoorProgram.h"

#include "Tallyrig/Outdoor/ReferencePieces.h"

#include <cstddef>
#include <string>

namespace tallyrig {

namespace {

struct Row {
    std::string_view rawValue;
    std::optional<std::string_view> sigValue;
    std::string_view referenceExample;
};

/// In the order of the programs. BOTA goes by another name in `MY_SIG`.
constexpr std::array<Row, outdoorPrograms.size()> rows = {{{"POTA", "POTA", "K-1234"},
                                                           {"SOTA", std::nullopt, "HB/BE-001"},
                                                           {"BOTA", "WWBOTA", "B/9A-0001"},
                                                           {"WWFF", "WWFF", "DLFF-0001"},
                                                           {"LLOTA", "LLOTA", "CL-0001"},
                                                           {"WCA", "WCA", "HB-00001"},
                                                           {"GMA", "GMA", "DA/AL-001"}}};

const Row& rowOf(OutdoorProgram program) {
    return rows[static_cast<std::size_t>(program)];
}

/// A place's region and its number, as nearly all programs have them: "DE-0001".
bool isRegionAndNumber(ReferencePieces reference, Lengths region, Lengths number) {
    const auto pieces = splitAtFirst(reference, '-');
    return pieces && isWord(pieces->first, region) && isNumber(pieces->second, number);
}

/// "DLFF-0001": the region ends in the two letters of the program.
bool isFloraFauna(ReferencePieces reference) {
    const auto pieces = splitAtFirst(reference, '-');
    if (!pieces || pieces->first.size() < 2) {
        return false;
    }
    const ReferencePieces mark = pieces->first.last(2);
    return mark[0] == "F" && mark[1] == "F" &&
           isWord(pieces->first.first(pieces->first.size() - 2), {1, 3}) && isNumber(pieces->second, {4, 5});
}

/// "DA/AL-001", or "G-01" where a country has no regions.
bool isMountain(ReferencePieces reference) {
    const auto pieces = splitAtFirst(reference, '-');
    if (!pieces || !isNumber(pieces->second, {2, 5})) {
        return false;
    }
    const auto place = splitAtFirst(pieces->first, '/');
    return place ? isWord(place->first, {1, 4}) && isWord(place->second, {1, 3})
                 : isWord(pieces->first, {1, 4});
}

}  // namespace

std::string_view rawValue(OutdoorProgram program) {
    return rowOf(program).rawValue;
}

std::optional<std::string_view> sigValue(OutdoorProgram program) {
    return rowOf(program).sigValue;
}

bool isADIF(OutdoorProgram program) {
    return program != OutdoorProgram::sota;
}

std::string_view referenceExample(OutdoorProgram program) {
    return rowOf(program).referenceExample;
}

bool isValidReference(OutdoorProgram program, std::string_view reference) {
    const ReferenceCharacters text(reference);
    const ReferencePieces pieces = text.all();
    switch (program) {
        case OutdoorProgram::pota:
        case OutdoorProgram::llota:
            return isRegionAndNumber(pieces, {1, 4}, {4, 5});
        case OutdoorProgram::sota:
            return false;
        case OutdoorProgram::bota:
            return pieces.size() > 2 && pieces[0] == "B" && pieces[1] == "/" &&
                   isRegionAndNumber(pieces.subspan(2), {1, 3}, {1, 5});
        case OutdoorProgram::wwff:
            return isFloraFauna(pieces);
        case OutdoorProgram::wca:
            return isRegionAndNumber(pieces, {1, 4}, {1, 5});
        case OutdoorProgram::gma:
            return isMountain(pieces);
    }
    return false;
}

std::vector<std::string_view> splitReferences(std::string_view list) {
    std::vector<std::string_view> references;
    forEachReference(list, [&](std::string_view reference) { references.push_back(reference); });
    return references;
}

}  // namespace tallyrig
