// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Reading/RawPlace.h"

#include "Quillon/Stores/FileReading.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Tallyrig/Text/Characters.h"
#include "Tallyrig/Text/Decoding.h"
#include "Tallyrig/Text/VisibleText.h"

#include <algorithm>
#include <string_view>

namespace quillon {

namespace {

constexpr std::string_view lineEnds = "\r\n";

QString shown(std::string_view bytes) {
    return toQString(tallyrig::text::visibleBytes(bytes));
}

/// Takes the line off the front, with its end, which is not returned.
std::string_view takeFirstLine(std::string_view& text) {
    const std::size_t end = std::min(text.find_first_of(lineEnds), text.size());
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(end);
    text.remove_prefix(text.starts_with("\r\n") ? 2 : std::min<std::size_t>(1, text.size()));
    return line;
}

/// The same at the back, where `text` ends with the end of a line.
std::string_view takeLastLine(std::string_view& text) {
    text.remove_suffix(text.ends_with("\r\n") ? 2 : 1);
    const std::size_t begin = text.find_last_of(lineEnds);
    const std::string_view line = begin == std::string_view::npos ? text : text.substr(begin + 1);
    text.remove_suffix(line.size());
    return line;
}

/// Whether a letter begins `text` that is seen as it is.
bool beginsWithLetter(std::string_view text) {
    constexpr std::size_t longestLetter = 4;
    std::size_t length = 1;
    while (length < std::min(longestLetter, text.size()) && !tallyrig::text::isUTF8(text.substr(0, length))) {
        ++length;
    }
    const std::string_view letter = text.substr(0, length);
    return tallyrig::text::isUTF8(letter) && !tallyrig::text::holdsUnseen(letter);
}

/// How much of `rest`, from the place to the end of its line, the place is about: a tag, a byte that is no
/// text, otherwise what stands there up to the next tag.
std::size_t markedLength(std::string_view rest) {
    constexpr std::size_t most = 200;
    const std::string_view near = tallyrig::text::beginning(rest, most);
    if (near.empty()) {
        return 0;
    }
    if (near.front() == '<') {
        return std::min(near.find('>'), near.size() - 1) + 1;
    }
    if (!beginsWithLetter(near)) {
        return 1;
    }
    const std::string_view upToTag = near.substr(0, near.find('<'));
    return std::max<std::size_t>(1, upToTag.find_last_not_of(" \t") + 1);
}

}  // namespace

RawPlace RawPlace::of(const FilePlace& place) {
    const QString cut(QChar(u'…'));
    std::string_view above = place.before;
    std::string_view below = place.behind;

    const std::size_t lineBegin = above.find_last_of(lineEnds);
    const std::string_view front = lineBegin == std::string_view::npos ? above : above.substr(lineBegin + 1);
    above.remove_suffix(front.size());
    const bool isFrontCut = above.empty() && place.isCutBefore;
    const std::string_view rest = below.substr(0, below.find_first_of(lineEnds));
    const std::size_t length = markedLength(rest);

    RawPlace raw;
    std::size_t number = place.line;
    while (!above.empty() && raw.lines.size() < linesAbove) {
        const QString text = shown(takeLastLine(above));
        raw.lines.push_back({--number, above.empty() && place.isCutBefore ? cut + text : text});
    }
    std::ranges::reverse(raw.lines);

    raw.markedLine = raw.lines.size();
    QString text = (isFrontCut ? cut : QString()) + shown(front);
    const QString marked = shown(rest.substr(0, length));
    raw.markBegin = text.size();
    raw.markLength = marked.size();
    text += marked + shown(rest.substr(length));
    takeFirstLine(below);
    const auto isBehindCut = [&] { return below.empty() && place.isCutBehind; };
    raw.lines.push_back({place.line, isBehindCut() ? text + cut : text});

    number = place.line;
    for (std::size_t count = 0; count < linesBelow && !below.empty(); ++count) {
        text = shown(takeFirstLine(below));
        raw.lines.push_back({++number, isBehindCut() ? text + cut : text});
    }
    return raw;
}

}  // namespace quillon
