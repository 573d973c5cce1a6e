// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Validation/ValidationIssue.h"

#include <optional>
#include <string>
#include <string_view>

namespace quillon {

/// The German words for fields and findings, and stored values as a person reads them. Nothing here changes
/// what is stored.
struct ADIFFieldCatalog {
    /// The German name of a field given in any case; its ADIF name in capitals if it has none.
    static std::string label(std::string_view name);

    /// What a person who is about to fill in the field wants to know, in German sentences: its ADIF name in
    /// capitals, and the form or the values that ADIF 3.1.7 asks of it, if it does.
    static std::string explanation(std::string_view name);

    /// One German sentence about the finding, made from its kind alone.
    static std::string germanMessage(const tallyrig::ValidationIssue& issue);

    /// The value as a cell shows it: dates and times of the QSO in readable form, all others as they are. An
    /// absent value is shown as empty.
    static std::string displayValue(std::optional<std::string_view> value, std::string_view name);

    /// A value of eight characters, YYYYMMDD, as DD.MM.YYYY, whatever the characters are; any other as it is.
    static std::string formatDate(std::optional<std::string_view> value);
    /// HHMM as HH:MM and HHMMSS as HH:MM:SS, whatever the characters are. A fifth character and those from
    /// the seventh on are dropped; fewer than four stay as they are.
    static std::string formatTime(std::optional<std::string_view> value);
};

}  // namespace quillon
