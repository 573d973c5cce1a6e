// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFDocument.h"
#include "Tallyrig/Log/LogFormat.h"
#include "Tallyrig/Log/ReadingReport.h"

#include <string>
#include <string_view>

namespace tallyrig::tool {

/// A log as it was read for a command.
struct LogFile {
    std::string argument;  ///< As the command line names it; "-" is standard input.
    LogFormat format = LogFormat::adif;
    ADIFDocument document;
    ReadingReport report;  ///< Empty where none was asked for.

    /// The last part of the path, as well-formed UTF-8.
    std::string fileName() const;
};

/// The name of the case, such as "adif", and the format's own name, such as "ADIF".
std::string_view formatName(LogFormat format);
std::string_view formatTitle(LogFormat format);

/// Reads the log, whatever its format. Throws a `Failure` if the file cannot be read.
LogFile readLog(const std::string& argument);
/// The same with the reader's report.
LogFile readLogWithReport(const std::string& argument);
/// Says on standard error how many notes the report on the log has, if it has any.
void complainOfReading(const LogFile& log);

/// Makes `text` the whole of the file. Throws a `Failure`, and then leaves the file as it was.
void writeFile(const std::string& path, std::string_view text);

}  // namespace tallyrig::tool
