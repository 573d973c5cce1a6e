#include "Tallyrig/CrossCheck/CrossCheckLog.h"

#include "Tallyrig/Log/RecordValues.h"
#include "Tallyrig/Text/Pieces.h"
#include "Tallyrig/Text/Text.h"

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <map>
#include <utility>

namespace tallyrig {

namespace {

std::string_view firstCall(std::string_view value) {
    std::string_view first;
    text::forEachPiece(value, ' ', [&](std::string_view word) {
        text::forEachPiece(word, ',', [&](std::string_view piece) {
            if (first.empty()) {
                first = piece;
            }
        });
    });
    return first;
}

/// How often each call stands first in the field, in text order.
std::map<std::string, std::size_t> votes(const ADIFDocument& log, std::string_view field) {
    std::map<std::string, std::size_t> votes;
    RecordValues values({field});
    std::string_view lastValue;
    std::size_t* lastVotes = nullptr;
    for (const ADIFRecord& record : log.records()) {
        values.read(record);
        const std::string_view value = values.valueOrEmpty(0);
        // Most records name the call that the one before has named.
        if (lastVotes == nullptr || value != lastValue) {
            const std::string upper = text::upper(value);
            const std::string_view call = firstCall(upper);
            if (call.empty()) {
                continue;
            }
            lastVotes = &votes[text::canonicalKey(call)];
            lastValue = value;
        }
        ++*lastVotes;
    }
    return votes;
}

}  // namespace

CrossCheckLog::CrossCheckLog(UUID logID, std::string displayName, ADIFDocument log,
                             std::optional<std::string_view> ownCall)
    : id(logID),
      name(std::move(displayName)),
      owner(text::upper(ownCall ? std::string(*ownCall) : detectOwner(log).value_or(std::string()))),
      document(std::move(log)) {}

std::optional<std::string> CrossCheckLog::detectOwner(const ADIFDocument& log) {
    for (const std::string_view field : {"STATION_CALLSIGN", "OPERATOR"}) {
        const auto calls = votes(log, field);
        // Of equals the first, which is the smallest.
        const auto most = std::ranges::max_element(calls, {}, [](const auto& call) { return call.second; });
        if (most != calls.end()) {
            return most->first;
        }
    }
    return std::nullopt;
}

}  // namespace tallyrig
