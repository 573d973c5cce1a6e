// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFDocument.h"
#include "Tallyrig/Log/LogFormat.h"
#include "Tallyrig/Log/ReadingReport.h"

#include <string_view>

namespace tallyrig {

/// Reads a log of any format: the one place that chooses the reader.
struct LogReader {
    struct Log {
        LogFormat format = LogFormat::adif;
        ADIFDocument document;
        ReadingReport report;
    };

    /// The log in the bytes of a file, in the format that its content shows. UTF-16 with a byte order mark,
    /// as editors save it, is read like the same text in UTF-8; a mark in front of UTF-8 is passed over. What
    /// is taken for ADI text for want of any mark, but has no call and a Cabrillo log further down, as a web
    /// page or a mail has it, is that log. Never fails. The report speaks of the file as it stands on disk.
    static Log read(std::string_view bytes);
    /// The same with lengths in ADI text taken as `repair` has them, which the report of the first reading
    /// names. It changes nothing in other formats.
    static Log read(std::string_view bytes, ReadingRepair repair);
    /// The same log as that of `read`, with an empty report, for those who have no use for one.
    static Log readWithoutReport(std::string_view bytes);
};

}  // namespace tallyrig
