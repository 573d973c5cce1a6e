// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/App/Terminal.h"

#include "Quillon/Platform/AppInfo.h"
#include "Quillon/Platform/FileNames.h"
#include "Tallyrig/Log/ProgramName.h"
#include "Tallyrig/Text/VisibleText.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QString>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <string>
#include <string_view>

namespace quillon {

namespace {

/// Behind the name of the program.
constexpr auto help =
    " [LOG]\n"
    "\n"
    "Zeigt, bearbeitet und prüft ein Log des Amateurfunks: ADIF, ADX, Cabrillo oder EDI.\n"
    "Ohne LOG beginnt ein neues. Ein Name, der mit einem Strich beginnt, wird ./-name geschrieben\n"
    "oder steht hinter --.\n"
    "\n"
    "Optionen\n"
    "  -h, --help            Zeigt diese Hilfe\n"
    "  --version             Zeigt die Version\n"
    "  --crosscheck ORDNER   Prüft die Logs des Ordners gegeneinander\n"
    "\n"
    "Für Skripte gibt es tallyrig, das ohne Fenster auskommt.\n";

constexpr int failed = 2;

/// An option that is taken besides those for help and version.
struct Option {
    std::string_view name;
    bool takesValue = false;  ///< The next argument belongs to it.
};

constexpr Option ownOptions[] = {
    {"--crosscheck", true},   {"--grab", true},         {"--grab-check"},         {"--grab-reading"},
    {"--grab-select", true},  {"--grab-compare", true}, {"--grab-contest", true}, {"--grab-mode", true},
    {"--grab-outdoor", true}, {"--grab-size", true},    {"--grab-dark"},
};

/// Those that Qt takes out of the arguments, with one dash or two.
constexpr Option toolkitOptions[] = {
    {"-platform", true},
    {"-platformpluginpath", true},
    {"-platformtheme", true},
    {"-plugin", true},
    {"-qwindowgeometry", true},
    {"-geometry", true},
    {"-qwindowicon", true},
    {"-icon", true},
    {"-qwindowtitle", true},
    {"-title", true},
    {"-display", true},
    {"-session", true},
    {"-style", true},
    {"-stylesheet", true},
    {"-reverse"},
    {"-widgetcount"},
};

/// The option that `argument` is; null if there is no such option.
const Option* optionOf(std::string_view argument) {
    const auto* const own = std::ranges::find(ownOptions, argument, &Option::name);
    if (own != std::end(ownOptions)) {
        return own;
    }
    const std::string_view name = argument.substr(argument.starts_with("--") ? 1 : 0);
    const auto* const toolkits = std::ranges::find(toolkitOptions, name, &Option::name);
    return toolkits == std::end(toolkitOptions) ? nullptr : toolkits;
}

/// The first argument that looks like an option, but is none and no file either; empty if there is none.
QString unknownOption(std::span<char* const> arguments) {
    for (std::size_t index = 0; index < arguments.size(); ++index) {
        const std::string_view argument = arguments[index];
        if (argument == "--") {
            break;
        }
        if (const Option* const option = optionOf(argument)) {
            index += option->takesValue ? 1 : 0;
        } else if (argument.starts_with('-') && !argument.starts_with("-style=") &&
                   !argument.starts_with("-stylesheet=")) {
            const QString shown = QFile::decodeName(arguments[index]);
            if (!QFileInfo::exists(absolutePath(shown))) {
                return shown;
            }
        }
    }
    return {};
}

int print(const std::string& text) {
    std::fputs(text.c_str(), stdout);
    return std::fflush(stdout) == 0 ? EXIT_SUCCESS : failed;
}

/// What the environment says about the display, as it stands there; empty if it says nothing.
std::string namedDisplay() {
    std::string named;
    for (const char* const variable : {"QT_QPA_PLATFORM", "WAYLAND_DISPLAY", "DISPLAY"}) {
        if (const QByteArray value = qgetenv(variable); !value.isEmpty()) {
            named += std::string(" ") + variable + "=" + value.constData();
        }
    }
    return named;
}

}  // namespace

std::optional<int> answerOnTerminal(std::span<char* const> arguments) {
    const std::string name(tallyrig::programName);
    for (const std::string_view argument : arguments) {
        if (argument == "--") {
            break;
        }
        if (argument == "-h" || argument == "--help") {
            return print("Aufruf: " + name + help);
        }
        if (argument == "--version") {
            return print(name + " " + appVersion().toStdString() + "\n");
        }
    }
    if (const QString unknown = unknownOption(arguments); !unknown.isEmpty()) {
        const std::string word = tallyrig::text::visibleText(unknown.toStdString());
        std::fprintf(
            stderr,
            "%s: Unbekannte Angabe: %s. Eine Datei dieses Namens heißt hier ./%s oder steht hinter -- "
            "(Hilfe: %s --help)\n",
            name.c_str(), word.c_str(), word.c_str(), name.c_str());
        return failed;
    }
    return std::nullopt;
}

void endWithoutDisplay(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (type == QtFatalMsg) {
        const std::string name(tallyrig::programName);
        const std::string named = namedDisplay();
        const std::string reason =
            named.empty() ? ": DISPLAY und WAYLAND_DISPLAY sind leer." : " mit" + named;
        std::fprintf(stderr, "%s: Es ist keine Anzeige zu erreichen%s\n", name.c_str(), reason.c_str());
        // Nothing has been made yet that would have to be put away.
        std::_Exit(failed);
    }
    // What the platforms tried before the end is all in that line, and where one works nobody need know.
    if (context.category == nullptr || std::strncmp(context.category, "qt.qpa.", 7) != 0) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(qFormatLogMessage(type, context, message)));
    }
}

}  // namespace quillon
