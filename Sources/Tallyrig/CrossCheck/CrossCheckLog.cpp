// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/CrossCheck/CrossCheckLog.h"

#include "Tallyrig/Log/MostFrequentValue.h"
#include "Tallyrig/Text/Pieces.h"
#include "Tallyrig/Text/Text.h"

#include <utility>

namespace tallyrig {

namespace {

/// The first of the calls in a field, in upper case.
std::string firstCall(std::string_view value) {
    std::string buffer;
    std::string_view first;
    text::forEachPiece(text::upper(value, buffer), ' ', [&](std::string_view word) {
        text::forEachPiece(word, ',', [&](std::string_view piece) {
            if (first.empty()) {
                first = piece;
            }
        });
    });
    return std::string(first);
}

}  // namespace

CrossCheckLog::CrossCheckLog(UUID logID, std::string displayName, ADIFDocument log,
                             std::optional<std::string_view> ownCall)
    : id(logID),
      name(std::move(displayName)),
      owner(text::upper(ownCall ? std::string(*ownCall) : detectOwner(log).value_or(std::string()))),
      document(std::move(log)) {}

std::optional<std::string> CrossCheckLog::detectOwner(const ADIFDocument& log) {
    auto owner = mostFrequentValue(log, "STATION_CALLSIGN", firstCall);
    return owner ? owner : mostFrequentValue(log, "OPERATOR", firstCall);
}

}  // namespace tallyrig
