// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Catalogue/CrossCheckWords.h"

#include "Quillon/Catalogue/ScoreWords.h"
#include "Tallyrig/CrossCheck/LogWork.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

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

std::string quotaText(std::optional<double> share) {
    if (!share) {
        return "–";
    }
    std::string text = fmt::format("{:.1f} %", *share * 100);
    std::ranges::replace(text, '.', ',');
    return text;
}

std::string readingText(const tallyrig::LogWork& reading) {
    const auto number = [](std::size_t count) {
        return ScoreWords::number(static_cast<std::int64_t>(count));
    };
    return reading.steps() == 0
               ? "Logs werden gesucht …"
               : number(reading.stepsDone()) + " von " + number(reading.steps()) + " Logs gelesen …";
}

}  // namespace quillon
