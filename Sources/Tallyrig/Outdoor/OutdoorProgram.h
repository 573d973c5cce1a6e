// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Text/Pieces.h"
#include "Tallyrig/Text/Text.h"

#include <array>
#include <optional>
#include <string_view>
#include <vector>

namespace tallyrig {

/// The award programs for operating outdoors: parks, summits, bunkers, castles.
enum class OutdoorProgram { pota, sota, bota, wwff, llota, wca, gma };

/// All of them, in the order in which they are offered.
inline constexpr std::array outdoorPrograms = {
    OutdoorProgram::pota,  OutdoorProgram::sota, OutdoorProgram::bota, OutdoorProgram::wwff,
    OutdoorProgram::llota, OutdoorProgram::wca,  OutdoorProgram::gma};

/// The name of the program, such as "POTA".
std::string_view rawValue(OutdoorProgram program);
/// What `MY_SIG` says of a QSO for the program, which is not always its name; absent for one that takes no
/// ADIF.
std::optional<std::string_view> sigValue(OutdoorProgram program);
/// Whether the program takes ADIF files with its reference in `MY_SIG_INFO`.
bool isADIF(OutdoorProgram program);
/// A reference as the program writes them, for a person who wants to see one.
std::string_view referenceExample(OutdoorProgram program);

/// Whether `reference`, blanks around it and in any case, has the form of the program's references. False
/// for SOTA: see `SOTAReference`.
bool isValidReference(OutdoorProgram program, std::string_view reference);

/// Calls `visit` with each reference in a field that lists them: what stands between commas, without blanks
/// around it, in its own case. Empty ones are passed over; the others refer to `list`.
template <typename Visit>
void forEachReference(std::string_view list, Visit visit) {
    text::forEachPiece(list, ',', [&](std::string_view piece) {
        if (const std::string_view reference = text::trimmedOfBlanks(piece); !reference.empty()) {
            visit(reference);
        }
    });
}
std::vector<std::string_view> splitReferences(std::string_view list);

}  // namespace tallyrig
