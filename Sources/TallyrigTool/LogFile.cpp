// SPDX-License-Identifier: GPL-3.0-or-later
#include "TallyrigTool/LogFile.h"

#include "Quillon/Catalogue/ReadingWords.h"
#include "Quillon/Platform/Files/Files.h"
#include "Tallyrig/Formats/LogReader.h"
#include "Tallyrig/Text/Decoding.h"
#include "TallyrigTool/Console.h"

#include <array>
#include <cstddef>
#include <utility>
#include <variant>

namespace tallyrig::tool {

namespace {

std::string bytesOf(const std::string& argument) {
    if (argument == "-") {
        return readStandardInput();
    }
    std::variant<std::string, quillon::FileError> result = quillon::readFile(argument);
    if (const auto* const error = std::get_if<quillon::FileError>(&result)) {
        throw Failure{argument + ": " + error->message};
    }
    return std::get<std::string>(std::move(result));
}

struct FormatWords {
    std::string_view name;
    std::string_view title;
};

/// In the order of the cases.
constexpr std::array<FormatWords, 4> formatWords = {
    {{"adif", "ADIF"}, {"adx", "ADX"}, {"cabrillo", "Cabrillo"}, {"edi", "EDI"}}};

}  // namespace

std::string_view formatName(LogFormat format) {
    return formatWords[static_cast<std::size_t>(format)].name;
}

std::string_view formatTitle(LogFormat format) {
    return formatWords[static_cast<std::size_t>(format)].title;
}

std::string LogFile::fileName() const {
    const std::size_t slash = argument.rfind('/');
    return text::repaired(slash == std::string::npos ? argument : argument.substr(slash + 1));
}

LogFile readLog(const std::string& argument) {
    LogReader::Log log = LogReader::readWithoutReport(bytesOf(argument));
    return {argument, log.format, std::move(log.document), {}};
}

LogFile readLogWithReport(const std::string& argument) {
    LogReader::Log log = LogReader::read(bytesOf(argument));
    return {argument, log.format, std::move(log.document), std::move(log.report)};
}

void complainOfReading(const LogFile& log) {
    if (!log.report.isEmpty()) {
        complain(log.argument + ": beim Lesen " + quillon::ReadingWords::counts(log.report) +
                 ", gezeigt von tallyrig read");
    }
}

void writeFile(const std::string& path, std::string_view text) {
    if (const auto error = quillon::replaceFile(path, text)) {
        throw Failure{path + ": " + error->message};
    }
}

}  // namespace tallyrig::tool
