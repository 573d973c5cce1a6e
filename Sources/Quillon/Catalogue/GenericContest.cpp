// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Catalogue/GenericContest.h"

#include "Tallyrig/Text/Pieces.h"
#include "Tallyrig/Text/Text.h"

#include <optional>
#include <string_view>
#include <vector>

namespace quillon {

namespace {

using namespace tallyrig;

ContestPoints pointsOf(const GenericContest& form) {
    switch (form.pointsKind) {
        case PointsKind::fixed:
            return points::Fixed{form.fixedPoints};
        case PointsKind::distance:
            return points::DistanceKm{form.myGridField, form.theirGridField};
        case PointsKind::field:
            return points::AdifField{form.pointsField};
    }
    return {};
}

std::vector<UpperText> requiredFieldsOf(const GenericContest& form) {
    std::vector<UpperText> fields;
    text::forEachPiece(form.requiredFieldsText, ',', [&](std::string_view part) {
        text::forEachPiece(part, ' ', [&](std::string_view piece) {
            const std::string_view name = text::trimmedOfBlanks(piece);
            if (!name.empty()) {
                fields.emplace_back(name);
            }
        });
    });
    return fields.empty() ? std::vector<UpperText>{"CALL"} : fields;
}

std::vector<UpperText> dupeFieldsOf(const GenericContest& form) {
    switch (form.dupeMode) {
        case DupeMode::callBand:
            return {"CALL", "BAND"};
        case DupeMode::callBandMode:
            return {"CALL", "BAND", "MODE"};
        case DupeMode::call:
            return {"CALL"};
    }
    return {};
}

std::vector<ContestMultiplier> multipliersOf(const GenericContest& form) {
    if (!form.multiplierEnabled || text::trimmedOfBlanks(form.multiplierField).empty()) {
        return {};
    }
    const bool isShortened = form.multiplierPrefix >= 1;
    return {{
        .name = form.multiplierName.empty() ? "Multiplikatoren" : form.multiplierName,
        .field = form.multiplierField,
        .perBand = form.multiplierPerBand,
        .prefixLength = isShortened ? std::optional(form.multiplierPrefix) : std::nullopt,
    }};
}

}  // namespace

ContestRules GenericContest::rules(const ContestStation& station) const {
    return {
        .name = contestName.empty() ? "Contest" : contestName,
        .station = station,
        .requiredFields = requiredFieldsOf(*this),
        .dupeFields = dupeFieldsOf(*this),
        .points = pointsOf(*this),
        .multipliers = multipliersOf(*this),
    };
}

}  // namespace quillon
