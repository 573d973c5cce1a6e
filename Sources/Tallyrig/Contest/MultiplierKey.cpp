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
    : multiplier(source), call(fields.add("CALL")) {
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
}

std::string_view MultiplierKey::read(ContestFields& fields, std::string_view band, std::string_view mode) {
    std::string_view value = rawValue(fields);
    if (value.empty() || (multiplier.alphabeticOnly && !text::isAllLetters(value)) ||
        (multiplier.mustContainLetter && !text::hasLetter(value))) {
        return {};
    }
    if (multiplier.prefixLength && *multiplier.prefixLength > 0) {
        value = text::firstCharacters(value, static_cast<std::size_t>(*multiplier.prefixLength));
    }
    if (!counts(value)) {
        return {};
    }
    key.clear();
    if (multiplier.perMode) {
        key.append(mode) += separator;
    }
    if (multiplier.perBand) {
        key.append(band) += separator;
    }
    key.append(value);
    if (!text::isASCII(key)) {
        key = text::canonicalKey(key);
    }
    return key;
}

std::string_view MultiplierKey::rawValue(ContestFields& fields) {
    switch (multiplier.kind) {
        case MultiplierKind::field:
            return multiplier.allowedValues ? allowedValue(fields) : firstValue(fields);
        case MultiplierKind::wpxPrefix:
            held = WPXPrefix::prefix(fields.valueOrEmpty(call));
            return held;
        case MultiplierKind::callAreaPerDxcc:
            return callArea(fields);
    }
    return {};
}

/// An exchange such as "599 ZH" holds the value in one of its words.
std::string_view MultiplierKey::allowedValue(ContestFields& fields) const {
    for (const std::size_t candidate : candidates) {
        const std::string_view value = fields.upper(candidate);
        if (!value.empty() && multiplier.allowedValues->contains(value)) {
            return value;
        }
        std::string_view allowed;
        text::forEachPiece(value, ' ', [&](std::string_view word) {
            if (allowed.empty() && multiplier.allowedValues->contains(word)) {
                allowed = word;
            }
        });
        if (!allowed.empty()) {
            return allowed;
        }
    }
    return {};
}

std::string_view MultiplierKey::firstValue(ContestFields& fields) const {
    for (const std::size_t candidate : candidates) {
        const std::string_view value = fields.upper(candidate);
        if (!value.empty()) {
            return wordOf(value, multiplier.token);
        }
    }
    return {};
}

std::string_view MultiplierKey::callArea(ContestFields& fields) {
    const std::string_view entity = fields.upper(dxcc);
    if (entity.empty()) {
        return {};
    }
    const std::string prefix = WPXPrefix::prefix(fields.valueOrEmpty(call));
    const std::string_view digit = text::lastNumeric(prefix);
    held.assign(entity).append("-").append(digit.empty() ? "0" : digit);
    return held;
}

bool MultiplierKey::counts(std::string_view value) const {
    return (!multiplier.allowedValues || multiplier.allowedValues->contains(value)) &&
           !(multiplier.excludedValues && multiplier.excludedValues->contains(value));
}

}  // namespace tallyrig
