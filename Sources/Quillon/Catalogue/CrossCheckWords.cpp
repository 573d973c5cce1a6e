#include "Quillon/Catalogue/CrossCheckWords.h"

#include <array>
#include <cstddef>

namespace quillon {

using tallyrig::CrossCheckStatus;

std::string_view label(CrossCheckStatus status) {
    constexpr std::array<std::string_view, tallyrig::crossCheckStatuses.size()> labels = {
        "bestätigt", "Busted Exchange", "Zeit abweichend", "Band/Modus abweichend", "Busted Call",
        "NIL",       "Unique",          "nicht prüfbar"};
    return labels[static_cast<std::size_t>(status)];
}

SystemColor badgeColor(CrossCheckStatus status) {
    switch (status) {
        case CrossCheckStatus::confirmed:
            return SystemColor::green;
        case CrossCheckStatus::bustedExchange:
        case CrossCheckStatus::timeMismatch:
        case CrossCheckStatus::bandModeMismatch:
            return SystemColor::orange;
        case CrossCheckStatus::bustedCall:
        case CrossCheckStatus::notInLog:
            return SystemColor::red;
        case CrossCheckStatus::unique:
            return SystemColor::purple;
        case CrossCheckStatus::notCheckable:
            break;
    }
    return SystemColor::gray;
}

}  // namespace quillon
