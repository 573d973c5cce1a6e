#include "Tallyrig/Log/ADIFWriter.h"
#include "Tallyrig/Text/Text.h"
#include "TallyrigTool/Commands.h"
#include "TallyrigTool/LogFile.h"
#include "TallyrigTool/Usage.h"

#include <CLI/CLI.hpp>

#include <chrono>
#include <memory>
#include <string>
#include <string_view>

namespace tallyrig::tool {

namespace {

struct Options {
    std::string file;
    std::string format;
    std::string target;
    bool hasNoHeader = false;
    std::string adifVersion = "3.1.7";
    std::string createdTimestamp;
};

/// The number of the digits of `text`; negative if there is anything else in it.
int digits(std::string_view text) {
    int number = 0;
    for (const char digit : text) {
        if (digit < '0' || digit > '9') {
            return -1;
        }
        number = number * 10 + (digit - '0');
    }
    return number;
}

/// Whether `text` is "yyyyMMdd HHmmss" and a moment that the calendar and the clock know.
bool isTimestamp(std::string_view text) {
    if (text.size() != 15 || text[8] != ' ' || digits(text.substr(0, 8)) < 0 || digits(text.substr(9)) < 0) {
        return false;
    }
    const std::chrono::year_month_day date{
        std::chrono::year(digits(text.substr(0, 4))),
        std::chrono::month(static_cast<unsigned>(digits(text.substr(4, 2)))),
        std::chrono::day(static_cast<unsigned>(digits(text.substr(6, 2))))};
    return date.ok() && digits(text.substr(9, 2)) < 24 && digits(text.substr(11, 2)) < 60 &&
           digits(text.substr(13, 2)) < 60;
}

std::string checkedTimestamp(const std::string& text) {
    return isTimestamp(text) ? std::string()
                             : "\"" + text + "\" ist kein Zeitpunkt der Form \"yyyyMMdd HHmmss\"";
}

std::string checkedFormat(const std::string& format) {
    if (format == "adx" || format == "cbr" || format == "edi") {
        return "Das Format " + format + " kann diese Version noch nicht schreiben";
    }
    return format == "adi" ? std::string() : "Unbekanntes Format: " + format + " (möglich ist adi)";
}

std::string converted(const Options& options, const ADIFDocument& document) {
    const ADIFWriter writer{"Quillon", TALLYRIG_VERSION,
                            text::trimmed(options.adifVersion).empty() ? "3.1.7" : options.adifVersion,
                            !options.hasNoHeader};
    return options.createdTimestamp.empty() ? writer.write(document)
                                            : writer.write(document, options.createdTimestamp);
}

}  // namespace

Command convertCommand(CLI::App& program) {
    CLI::App& usage =
        addCommand(program, "convert", "Schreibt ein Log neu, in ein anderes Format oder mit anderem Kopf.",
                   "tallyrig convert --to adi -o neu.adi Examples/vereinsabend.adi");
    const auto options = std::make_shared<Options>();
    usage.add_option("FILE", options->file, "Das Log; - liest die Standardeingabe")->required();
    usage.add_option("--to", options->format, "Das neue Format, anzugeben in jedem Fall: adi")
        ->required()
        ->type_name("FORMAT")
        ->check(CLI::Validator(checkedFormat, ""));
    usage.add_option("-o", options->target, "Die Datei, die geschrieben wird, sonst die Standardausgabe")
        ->type_name("OUT");
    usage.add_flag("--no-header", options->hasNoHeader, "Lässt Kommentar und Kopf weg");
    usage.add_option("--adif-version", options->adifVersion, "ADIF-Version im Kopf, sonst 3.1.7")
        ->type_name("V");
    usage
        .add_option("--timestamp", options->createdTimestamp,
                    "Zeitpunkt im Kopf als \"yyyyMMdd HHmmss\" in UTC, sonst jetzt")
        ->type_name("T")
        ->check(CLI::Validator(checkedTimestamp, ""));
    return {&usage, [options](Output& output) {
                const std::string text = converted(*options, readLog(options->file).document);
                if (options->target.empty() || options->target == "-") {
                    output.write(text);
                } else {
                    writeFile(options->target, text);
                }
                return ExitStatus::good;
            }};
}

}  // namespace tallyrig::tool
