// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ReadingReport.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The tags of ADI files, one at a time and with all that is wrong with them.
namespace tallyrig {

/// What a tag says of the length of its value.
enum class ADILength { number, missing, empty, noNumber };

/// What stands between "<" and ">".
struct ADITag {
    std::string name;  ///< In upper case, trimmed.
    ADILength lengthKind = ADILength::missing;
    std::uint64_t length = 0;  ///< 0 unless the kind is `number`.
    std::optional<std::string> type = {};

    bool isMark() const { return name == "EOR" || name == "EOH"; }
};

/// The tag of the bytes between "<" and ">", in whatever state they are.
ADITag adiTag(std::string_view bytes);

/// A tag in a file. Offsets are bytes.
struct PlacedADITag {
    ADITag tag;
    std::size_t open = 0;        ///< Of its "<".
    std::size_t valueBegin = 0;  ///< Behind its ">".
    std::size_t valueEnd = 0;    ///< By its length, not behind the end of the file; of a mark, `valueBegin`.

    std::string_view textIn(std::string_view data) const {
        return data.substr(open + 1, valueBegin - open - 2);
    }
    bool isPastEnd(std::string_view data) const {
        return !tag.isMark() && tag.length > data.size() - valueBegin;
    }
};

/// The tag whose "<" is at `open`; absent if there is no ">" behind it.
std::optional<PlacedADITag> adiTagAt(std::string_view data, std::size_t open);

/// Whether `text` is a name as programs give it to a field: letters, digits, "_", "-" and ".",
/// a letter first.
bool isADIName(std::string_view text);

/// Whether `text`, from behind where a "<" would stand, begins as the tag of a field with a length does, or
/// is that of a mark.
bool beginsLikeADITag(std::string_view text);

/// Where between `begin` and `end` something begins that looks like a tag with a length, or like <EOR> or
/// <EOH>; it may reach beyond `end`.
std::optional<std::size_t> likelyADITag(std::string_view data, std::size_t begin, std::size_t end);

/// Whether a value may end at `end`: only white space stands between there and a tag of any name, or the end
/// of the file.
bool isADIValueEnd(std::string_view data, std::size_t end);

/// Where the value ends if its length counts characters; absent if it is no UTF-8 up to there, and where the
/// file ends before. Bytes and characters give the same for ASCII.
std::optional<std::size_t> adiValueEndInCharacters(std::string_view data, const PlacedADITag& tag);

/// Where the value ends if it ends at a tag not by its length but only with one character more or less.
std::optional<std::size_t> adiValueEndNearby(std::string_view data, const PlacedADITag& tag);

}  // namespace tallyrig
