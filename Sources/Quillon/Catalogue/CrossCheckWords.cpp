#include "Quillon/Catalogue/CrossCheckWords.h"

#include <array>
#include <cstddef>

namespace quillon {

std::string_view label(tallyrig::CrossCheckStatus status) {
    constexpr std::array<std::string_view, tallyrig::crossCheckStatuses.size()> labels = {
        "bestätigt", "Busted Exchange", "Zeit abweichend", "Band/Modus abweichend", "Busted Call",
        "NIL",       "Unique",          "nicht prüfbar"};
    return labels[static_cast<std::size_t>(status)];
}

}  // namespace quillon
