// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Text/Characters.h"

#include "Tallyrig/Text/ASCII.h"
#include "Tallyrig/Text/Text.h"

#include <unicode/brkiter.h>
#include <unicode/uchar.h>
#include <unicode/utext.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <cstdint>
#include <memory>

namespace tallyrig::text {

namespace {

/// Calls `visit` with each character. ICU's iterators are dear to make and belong to one thread at a time, so
/// each thread keeps one.
template <typename Visit>
void forEachCluster(std::string_view text, Visit visit) {
    thread_local const std::unique_ptr<icu::BreakIterator> clusters = [] {
        UErrorCode status = U_ZERO_ERROR;
        return std::unique_ptr<icu::BreakIterator>(
            icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
    }();
    UErrorCode status = U_ZERO_ERROR;
    UText source = UTEXT_INITIALIZER;
    utext_openUTF8(&source, text.data(), static_cast<std::int64_t>(text.size()), &status);
    clusters->setText(&source, status);
    std::size_t begin = 0;
    for (auto end = clusters->next(); end != icu::BreakIterator::DONE; end = clusters->next()) {
        visit(text.substr(begin, static_cast<std::size_t>(end) - begin));
        begin = static_cast<std::size_t>(end);
    }
    utext_close(&source);
}

/// In ASCII every byte is a character, but for CR LF.
template <typename Visit>
void forEachASCIICharacter(std::string_view text, Visit visit) {
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t length = text.substr(at).starts_with("\r\n") ? 2 : 1;
        visit(text.substr(at, length));
        at += length;
    }
}

template <typename Visit>
void forEachCharacter(std::string_view text, Visit visit) {
    if (isASCII(text)) {
        forEachASCIICharacter(text, visit);
    } else {
        forEachCluster(text, visit);
    }
}

UChar32 firstCodePoint(std::string_view text) {
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
    std::size_t at = 0;
    UChar32 c = 0;
    U8_NEXT_OR_FFFD(bytes, at, text.size(), c);
    return c;
}

}  // namespace

std::size_t characterCount(std::string_view text) {
    std::size_t count = 0;
    if (isASCII(text)) {
        count = text.size();
        for (std::size_t at = text.find("\r\n"); at != std::string_view::npos;
             at = text.find("\r\n", at + 2)) {
            --count;
        }
    } else {
        forEachCluster(text, [&](std::string_view) { ++count; });
    }
    return count;
}

bool hasLength(std::string_view text, std::size_t count) {
    return characterCount(text) == count;
}

std::vector<std::string_view> characters(std::string_view text) {
    std::vector<std::string_view> result;
    result.reserve(text.size());
    forEachCharacter(text, [&](std::string_view character) { result.push_back(character); });
    return result;
}

std::string_view firstCharacters(std::string_view text, std::size_t count) {
    // In ASCII only CR LF is longer than a byte, and an ASCII byte behind the front cannot belong to it.
    const std::string_view front = text.substr(0, count);
    const std::string_view next = text.substr(front.size(), 1);
    if (isASCII(front) && isASCII(next) && front.find('\r') == std::string_view::npos) {
        return front;
    }
    const std::vector<std::string_view> all = characters(text);
    return all.size() <= count ? text
                               : text.substr(0, static_cast<std::size_t>(all[count].data() - text.data()));
}

std::string_view beginning(std::string_view text, std::size_t mostBytes) {
    if (text.size() <= mostBytes) {
        return text;
    }
    std::size_t end = mostBytes;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U) {
        --end;
    }
    return text.substr(0, end);
}

bool isLetter(std::string_view character) {
    return !character.empty() && (U_MASK(u_charType(firstCodePoint(character))) & U_GC_L_MASK) != 0;
}

bool isNumeric(std::string_view character) {
    return !character.empty() &&
           u_getIntPropertyValue(firstCodePoint(character), UCHAR_NUMERIC_TYPE) != U_NT_NONE;
}

std::string_view lastNumeric(std::string_view text) {
    if (isASCII(text)) {
        std::size_t end = text.size();
        while (end > 0 && !isASCIIDigit(text[end - 1])) {
            --end;
        }
        return end == 0 ? std::string_view() : text.substr(end - 1, 1);
    }
    std::string_view last;
    forEachCluster(text, [&](std::string_view character) {
        if (isNumeric(character)) {
            last = character;
        }
    });
    return last;
}

std::string numericCharacters(std::string_view text) {
    std::string result;
    if (isASCII(text)) {
        result.resize(text.size());
        const auto kept = std::ranges::copy_if(text, result.begin(), isASCIIDigit);
        result.erase(kept.out, result.end());
        return result;
    }
    for (const std::string_view character : characters(text)) {
        if (isNumeric(character)) {
            result += character;
        }
    }
    return result;
}

bool isAllNumeric(std::string_view text) {
    bool numeric = true;
    if (isASCII(text)) {
        for (const char c : text) {
            numeric = numeric && isASCIIDigit(c);
        }
        return numeric;
    }
    forEachCluster(text, [&](std::string_view character) { numeric = numeric && isNumeric(character); });
    return numeric;
}

bool isAllLetters(std::string_view text) {
    if (isASCII(text)) {
        return std::ranges::all_of(text, isASCIILetter);
    }
    bool letters = true;
    forEachCluster(text, [&](std::string_view character) { letters = letters && isLetter(character); });
    return letters;
}

bool hasLetter(std::string_view text) {
    if (isASCII(text)) {
        return std::ranges::any_of(text, isASCIILetter);
    }
    bool found = false;
    forEachCluster(text, [&](std::string_view character) { found = found || isLetter(character); });
    return found;
}

}  // namespace tallyrig::text
