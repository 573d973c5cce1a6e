// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Text/Characters.h"

#include <QLocale>
#include <QString>

#include <cstddef>
#include <string>
#include <string_view>

namespace quillon {

/// The longest value, in bytes, that a text field takes for editing: the field lays out all of its text at
/// once, which takes seconds for one of some megabytes.
inline constexpr std::size_t longestEditableValue = 200'000;

/// The front of `text` (UTF-8), `longest` bytes at most, with no letter cut in two. The usual limit is more
/// than the widest column shows of the narrowest letters; to lay out a text of megabytes takes seconds.
inline std::string_view cutToShow(std::string_view text, std::size_t longest = 1024) {
    return tallyrig::text::beginning(text, longest);
}

/// UTF-8 as the stores and the library hold it, for the screen.
inline QString toQString(std::string_view text) {
    QString result = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    if (text.starts_with("\xEF\xBB\xBF")) {
        // Qt takes it for the mark of a file. In front of a value it is a character like any other, and what
        // is shown is also what is written back.
        result.prepend(QChar(QChar::ByteOrderMark));
    }
    return result;
}

/// A number as it is read in German, such as "100.000".
inline QString numberText(std::size_t number) {
    return QLocale(QLocale::German).toString(static_cast<qulonglong>(number));
}

}  // namespace quillon
