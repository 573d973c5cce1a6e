#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace quillon {

/// UTF-8 as the stores and the library hold it, for the screen.
inline QString toQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace quillon
