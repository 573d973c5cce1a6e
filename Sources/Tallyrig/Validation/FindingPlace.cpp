// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Validation/FindingPlace.h"

#include "Tallyrig/Text/Text.h"

#include <string>
#include <variant>
#include <vector>

namespace tallyrig {

namespace {

/// The name of the field for those kinds that do not carry it.
struct FieldName {
    const ADIFRecord& record;

    std::string_view operator()(const finding::UnknownBand& kind) const {
        return text::trimmed(record.valueOrEmpty("BAND")) == kind.value ? "BAND" : "BAND_RX";
    }
    std::string_view operator()(const finding::UnknownMode&) const { return "MODE"; }
    std::string_view operator()(const finding::ImplausibleCallsign&) const { return "CALL"; }
    std::string_view operator()(const finding::FrequencyOutsideBand&) const { return "FREQ"; }
    std::string_view operator()(const finding::Duplicate& kind) const {
        const std::vector<std::string>& fields = kind.keyFields;
        return fields.empty() ? std::string_view() : std::string_view(fields.front());
    }
    /// Of several fields that would do, the one to be filled in.
    std::string_view operator()(const finding::OutdoorMissingField& kind) const {
        return std::string_view(kind.field).substr(0, kind.field.find('/'));
    }
    std::string_view operator()(const finding::OutdoorInconsistentStationCallsign&) const {
        return "STATION_CALLSIGN";
    }
    std::string_view operator()(const finding::OutdoorWrongSig&) const { return "MY_SIG"; }
    template <typename Kind>
    std::string_view operator()(const Kind& kind) const {
        return kind.field;
    }
};

/// The value that was found; absent for those kinds that do not carry it.
std::optional<std::string_view> valueOf(const ValidationKind& kind) {
    return std::visit(
        [](const auto& payload) -> std::optional<std::string_view> {
            if constexpr (requires { payload.value; }) {
                return payload.value;
            } else {
                return std::nullopt;
            }
        },
        kind);
}

}  // namespace

FindingPlace placeOf(const ValidationKind& kind, const ADIFRecord& record) {
    FindingPlace place{std::visit(FieldName{record}, kind), std::nullopt};
    const std::optional<std::string_view> value = valueOf(kind);
    const ADIFFields fields = record.fields();
    for (std::size_t index = 0; index < fields.size(); ++index) {
        if (!text::equal(fields[index].name, place.field)) {
            continue;
        }
        if (value && text::trimmed(fields[index].value) == *value) {
            place.position = index;
            return place;
        }
        place.position = place.position.value_or(index);
    }
    return place;
}

}  // namespace tallyrig
