#pragma once

#include "Quillon/Catalogue/BandColors.h"
#include "Quillon/Views/Controls/Tone.h"
#include "Tallyrig/CrossCheck/CrossCheckStatus.h"

#include <QString>

#include <optional>

namespace quillon {

/// How the results of a cross-check are told on screen, in German.
struct CrossCheckWords {
    static QString label(tallyrig::CrossCheckStatus status);
    static SystemColor color(tallyrig::CrossCheckStatus status);
    /// A share from 0 to 1 as a percentage with one decimal, "–" if it is absent.
    static QString quota(std::optional<double> share);
    static Tone tone(std::optional<double> share);
};

}  // namespace quillon
