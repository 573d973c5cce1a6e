// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Contest/MultiplierKey.h"

#include "Tallyrig/Geography/WPXPrefix.h"
#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/Pieces.h"
#include "Tallyrig/Text/Text.h"

namespace tallyrig {

namespace {

constexpr char separator = '\x1F';

/// The word of `value` that counts, empty if it has none.
std::string_view wordOf(std::string_view value, MultiplierToken token) {
    if (token == MultiplierToken::whole) {
        return value;
    }
    std::string_view word;
    text::forEachPiece(value, ' ', [&](std::string_view piece) {
        if (token == MultiplierToken::last || word.empty()) {
            word = piece;
        }
    });
    return word;
}

}  // namespace

MultiplierKey::MultiplierKey(const ContestMultiplier& source, ContestFields& fields)
    : multiplier(source),
      call(fields.add("CALL")),
      isKnownByField(source.kind == MultiplierKind::field && !source.prefixLength) {
    switch (multiplier.kind) {
        case MultiplierKind::field:
            candidates.push_back(fields.add(multiplier.field));
            for (const UpperText& fallback : multiplier.fallbackFields) {
                candidates.push_back(fields.add(fallback));
            }
            break;
        case MultiplierKind::wpxPrefix:
            break;
        case MultiplierKind::callAreaPerDxcc:
            dxcc = fields.add("DXCC");
            break;
    }
    if (!candidates.empty()) {
        firstField = candidates.front();
    }
}

bool MultiplierKey::addNew(ContestFields& fields, const SteadyField& band, const SteadyField& mode,
                           KeyNumbers& seen) {
    const std::string_view known =
        isKnownByField ? fields.valueOrEmpty(firstField) : countedOf(rawValue(fields).value);
    Settled* place = nullptr;
    Settled now;
    if (known.size() <= sizeof(std::uint64_t)) {
        now = {text::shortWord(known), known.size(), multiplier.perBand ? band.number() : 0,
               multiplier.perMode ? mode.number() : 0};
        place = &settled[((now.word ^ now.band) * 0x9E3779B97F4A7C15U) >> 56U];
        if (*place == now) {
            return false;
        }
    }
    const Raw raw = isKnownByField ? rawValue(fields) : Raw{known, true};
    if (place != nullptr && raw.isOfFirst) {
        *place = now;
    }
    return addCounted(isKnownByField ? countedOf(raw.value) : known, band, mode, seen);
}

bool MultiplierKey::addCounted(std::string_view value, const SteadyField& band, const SteadyField& mode,
                               KeyNumbers& seen) const {
    if (value.empty()) {
        return false;
    }
    if (multiplier.perMode) {
        seen.append(mode.key());
        seen.append(separator);
    }
    if (multiplier.perBand) {
        seen.append(band.key());
        seen.append(separator);
    }
    return (text::isASCII(value) ? seen.add(value) : seen.add(text::canonicalKey(value))).isNew;
}

/// What counts of a raw value, empty if nothing does.
std::string_view MultiplierKey::countedOf(std::string_view raw) const {
    if (raw.empty() || (multiplier.alphabeticOnly && !text::isAllLetters(raw)) ||
        (multiplier.mustContainLetter && !text::hasLetter(raw))) {
        return {};
    }
    if (multiplier.prefixLength && *multiplier.prefixLength > 0) {
        raw = text::firstCharacters(raw, static_cast<std::size_t>(*multiplier.prefixLength));
    }
    return counts(raw) ? raw : std::string_view();
}

MultiplierKey::Raw MultiplierKey::rawValue(ContestFields& fields) {
    switch (multiplier.kind) {
        case MultiplierKind::field:
            return multiplier.allowedValues ? allowedValue(fields) : firstValue(fields);
        case MultiplierKind::wpxPrefix:
            return {WPXPrefix::prefix(fields.valueOrEmpty(call), held), true};
        case MultiplierKind::callAreaPerDxcc:
            return {callArea(fields), false};
    }
    return {};
}

/// An exchange such as "599 ZH" holds the value in one of its words.
MultiplierKey::Raw MultiplierKey::allowedValue(ContestFields& fields) const {
    for (const std::size_t candidate : candidates) {
        const std::string_view value = fields.upper(candidate);
        std::string_view allowed;
        if (!value.empty() && multiplier.allowedValues->contains(value)) {
            allowed = value;
        } else {
            text::forEachPiece(value, ' ', [&](std::string_view word) {
                if (allowed.empty() && multiplier.allowedValues->contains(word)) {
                    allowed = word;
                }
            });
        }
        if (!allowed.empty()) {
            return {allowed, candidate == firstField};
        }
    }
    return {};
}

MultiplierKey::Raw MultiplierKey::firstValue(ContestFields& fields) const {
    for (const std::size_t candidate : candidates) {
        const std::string_view value = fields.upper(candidate);
        if (!value.empty()) {
            return {wordOf(value, multiplier.token), candidate == firstField};
        }
    }
    return {};
}

std::string_view MultiplierKey::callArea(ContestFields& fields) {
    const std::string_view entity = fields.upper(dxcc);
    if (entity.empty()) {
        return {};
    }
    const std::string_view digit = text::lastNumeric(WPXPrefix::prefix(fields.valueOrEmpty(call), prefix));
    held.assign(entity).append("-").append(digit.empty() ? "0" : digit);
    return held;
}

bool MultiplierKey::counts(std::string_view value) const {
    return (!multiplier.allowedValues || multiplier.allowedValues->contains(value)) &&
           !(multiplier.excludedValues && multiplier.excludedValues->contains(value));
}

}  // namespace tallyrig
