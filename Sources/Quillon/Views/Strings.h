#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace quillon {

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

}  // namespace quillon
