// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Formats/ADXWriter.h"
#include "Tallyrig/Log/ADIFDocument.h"
#include "Tallyrig/Log/ADIFWriter.h"
#include "Tallyrig/Log/LogFormat.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tallyrig {

/// What would not come back of a log that is written.
enum class LossKind : std::uint8_t {
    otherFormat,  ///< The text would be taken for a log in another format.
    comment,      ///< The comment of the header is not the same.
    field,        ///< A field whose name the format cannot carry, with its value.
    value,        ///< A field whose value would be another.
    type,         ///< A field whose type would be another.
    record,       ///< A record that would not be the same, without a field that is to blame.
    log,          ///< The log would not be the same, without a record that is to blame.
};

struct WritingLoss {
    LossKind kind = LossKind::log;
    std::optional<std::size_t> recordIndex = {};  ///< Absent for what stands in the header.
    std::string field = {};                       ///< Its name.
    std::string value = {};                       ///< As the log has it; for a type, that.
    std::string readBack = {};  ///< What would come in the place of `value`; empty also if nothing would.
    LogFormat format = LogFormat::adif;  ///< The other one.
};

/// What a log would lose if it were written and read again.
struct WritingReport {
    static constexpr std::size_t mostLosses = 100;

    /// As many of them as are named: those of the log and of its header first, then by record.
    std::vector<WritingLoss> losses;
    std::size_t lossCount = 0;    ///< Of all. What is lost in a record besides, `unreadCount` has.
    std::size_t recordCount = 0;  ///< How many records have losses of their own.
    /// How many records at the end of the log would not be read at all, because reading ends before them.
    std::size_t unreadCount = 0;
    /// Whether `lossCount` and `recordCount` are all: so many values would be lost that not all were
    /// looked at.
    bool isComplete = true;

    bool isEmpty() const { return lossCount == 0; }
};

/// Reads `text`, which the writer made of `document`, as the file would be read when it is opened, and tells
/// what is not as it was.
///
/// No loss is what writers do on purpose: their own header fields and comment, a header left out, the comment
/// and the types of user-defined fields in ADX, an empty type. Nor is another spelling of what means the
/// same: canonically equivalent text and, in ADX, the kind of a line break and the braces and blanks of a
/// user-defined field's definition. Where nothing is lost this costs one reading; otherwise several, and
/// single records are written anew.
WritingReport readBack(const ADIFWriter& writer, const ADIFDocument& document, std::string_view text);
WritingReport readBack(const ADXWriter& writer, const ADIFDocument& document, std::string_view text);

}  // namespace tallyrig
