// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Catalogue/LogWriters.h"
#include "Quillon/Catalogue/LossWords.h"
#include "Tallyrig/Formats/CabrilloWriter.h"
#include "Tallyrig/Formats/EDIWriter.h"
#include "Tallyrig/Formats/WritingReport.h"
#include "Tallyrig/Validation/ADIFSpec317.h"
#include "Tallyrig/Validation/ADIFValidator.h"
#include "TallyrigTool/Commands.h"
#include "TallyrigTool/LogFile.h"
#include "TallyrigTool/Usage.h"

#include <CLI/CLI.hpp>

#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tallyrig::tool {

namespace {

struct Options {
    std::string file;
    std::string format;
    std::string target;
    bool hasNoHeader = false;
    std::string adifVersion;  ///< Blank for the current one.
    std::string createdTimestamp;
    std::vector<std::string> settings;  ///< Each "NAME=VALUE".
};

/// Whether `text` is "yyyyMMdd HHmmss" and a moment that the calendar and the clock know.
bool isTimestamp(std::string_view text) {
    return text.size() == 15 && text[8] == ' ' && ADIFValidator::isValidDate(text.substr(0, 8)) &&
           ADIFValidator::isValidTime(text.substr(9));
}

std::string checkedTimestamp(const std::string& text) {
    return isTimestamp(text) ? std::string()
                             : "\"" + text + "\" ist kein Zeitpunkt der Form \"yyyyMMdd HHmmss\"";
}

std::string checkedFormat(const std::string& format) {
    const bool isKnown = format == "adi" || format == "adx" || format == "cbr" || format == "edi";
    return isKnown ? "" : "Unbekanntes Format: " + format + " (möglich sind adi, adx, cbr, edi)";
}

std::string checkedSetting(const std::string& setting) {
    return setting.find('=') != std::string::npos ? "" : setting + " hat nicht die Form NAME=WERT";
}

/// The header that the log suggests, with what the command line sets in it.
template <typename Header>
Header headerFor(const ADIFDocument& document, const Options& options) {
    Header header = Header::suggested(document);
    for (const std::string& setting : options.settings) {
        const std::size_t equals = setting.find('=');
        if (!header.setMember(setting.substr(0, equals), setting.substr(equals + 1))) {
            throw Failure{"--set: " + setting + " passt zu keinem Feld im Kopf von " + options.format +
                          " (Hilfe: tallyrig convert --help)"};
        }
    }
    return header;
}

/// A log in its new format, and what of it would not come back.
struct Converted {
    std::string text;
    WritingReport losses;
};

template <typename Writer>
Converted writtenBy(const Writer& writer, const ADIFDocument& document, const Options& options) {
    if (!options.settings.empty()) {
        throw Failure{"--set gilt nur für cbr und edi (Hilfe: tallyrig convert --help)"};
    }
    Converted result;
    result.text = options.createdTimestamp.empty() ? writer.write(document)
                                                   : writer.write(document, options.createdTimestamp);
    result.losses = readBack(writer, document, result.text);
    return result;
}

/// Cabrillo and EDI have room for the columns of a contest only: what else a log holds is left out on
/// purpose, and nothing is said of it.
Converted converted(const ADIFDocument& document, const Options& options) {
    if (options.format == "cbr") {
        return {CabrilloWriter{headerFor<CabrilloHeader>(document, options)}.write(document), {}};
    }
    if (options.format == "edi") {
        return {EDIWriter{headerFor<EDIHeader>(document, options)}.write(document), {}};
    }
    const bool hasHeader = !options.hasNoHeader;
    return options.format == "adx"
               ? writtenBy(quillon::adxWriter(options.adifVersion, hasHeader), document, options)
               : writtenBy(quillon::adifWriter(options.adifVersion, hasHeader), document, options);
}

void complainOfLosses(const WritingReport& losses, const LogFile& log) {
    constexpr std::size_t mostLines = 10;
    complain(log.argument + ": " + quillon::LossWords::summary(losses));
    for (const std::string& line : quillon::LossWords::lines(losses, log.document, mostLines)) {
        complain("  " + line);
    }
}

/// The names of header members, in lines of a help page.
std::string lines(std::span<const std::string_view> names) {
    constexpr std::size_t width = 76;
    std::string text;
    std::string line = " ";
    for (const std::string_view name : names) {
        if (line.size() + name.size() + 1 > width) {
            text += line + "\n";
            line = " ";
        }
        line += " " + std::string(name);
    }
    return text + line;
}

}  // namespace

Command convertCommand(CLI::App& program) {
    CLI::App& usage = addCommand(
        program, "convert", "Schreibt ein Log neu, in ein anderes Format oder mit anderem Kopf.",
        "tallyrig convert --to cbr --set contest=WAG -o neu.cbr Examples/vereinsabend.adi\n\n"
        "Was adi oder adx von dem Log nicht tragen kann, wird auf der Fehlerausgabe genannt; geschrieben "
        "wird\n"
        "trotzdem, und der Rückgabewert ist 1.\n\n"
        "Die Köpfe von cbr und edi beginnen mit dem, was das Log nahelegt. NAME ist bei cbr\n" +
            lines(CabrilloHeader::memberNames()) + "\nund bei edi\n" + lines(EDIHeader::memberNames()));
    const auto options = std::make_shared<Options>();
    usage.add_option("FILE", options->file, "Das Log; - liest die Standardeingabe")->required();
    usage.add_option("--to", options->format, "Das neue Format (nötig): adi, adx, cbr oder edi")
        ->required()
        ->type_name("FORMAT")
        ->check(CLI::Validator(checkedFormat, ""));
    usage.add_option("-o", options->target, "Die Datei, die geschrieben wird, sonst die Standardausgabe")
        ->type_name("OUT");
    usage.add_flag("--no-header", options->hasNoHeader, "Lässt den Kopf weg (adi, adx)");
    usage
        .add_option("--adif-version", options->adifVersion,
                    "ADIF-Version im Kopf, sonst " + std::string(ADIFSpec::version) + " (adi, adx)")
        ->type_name("V");
    usage
        .add_option("--timestamp", options->createdTimestamp,
                    "Zeitpunkt im Kopf als \"yyyyMMdd HHmmss\" in UTC, sonst jetzt (adi, adx)")
        ->type_name("T")
        ->check(CLI::Validator(checkedTimestamp, ""));
    usage.add_option("--set", options->settings, "Setzt ein Feld im Kopf, auch mehrmals (cbr, edi)")
        ->type_name("NAME=WERT")
        ->allow_extra_args(false)
        ->check(CLI::Validator(checkedSetting, ""));
    return {&usage, [options](Output& output) {
                const LogFile log = readLogWithReport(options->file);
                complainOfReading(log);
                const auto [text, losses] = converted(log.document, *options);
                if (options->target.empty() || options->target == "-") {
                    output.write(text);
                } else {
                    writeFile(options->target, text);
                }
                if (losses.isEmpty()) {
                    return ExitStatus::good;
                }
                complainOfLosses(losses, log);
                return ExitStatus::findings;
            }};
}

}  // namespace tallyrig::tool
