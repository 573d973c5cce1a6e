// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/UUID.h"

#include <optional>
#include <string>
#include <string_view>

namespace tallyrig {

/// One named value of a header or a record, standing on its own.
struct ADIFField {
    UUID id;            ///< Takes no part in equality.
    std::string name;   ///< In upper case, as the constructor stores it.
    std::string value;  ///< Verbatim, never trimmed; may be empty.
    std::optional<std::string>
        type;  ///< The data type indicator of the tag as read, in its own case; may be empty.

    /// A field with `name` in upper case.
    ADIFField(std::string_view name, std::string value, std::optional<std::string> type = std::nullopt,
              UUID id = UUID::fresh());

    friend bool operator==(const ADIFField& left, const ADIFField& right);
};

/// A field where it stands in a record. The texts refer to the record's memory: they are good as long as that
/// record, or any copy of it, lives and is not changed.
struct ADIFFieldView {
    UUID id;
    std::string_view name;
    std::string_view value;
    std::optional<std::string_view> type;

    /// The same field standing on its own, with the same id.
    ADIFField field() const;

    friend bool operator==(const ADIFFieldView& left, const ADIFFieldView& right);
};

}  // namespace tallyrig
