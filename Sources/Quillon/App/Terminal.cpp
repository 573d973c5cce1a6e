#include "Quillon/App/Terminal.h"

#include "Quillon/Platform/AppInfo.h"
#include "Tallyrig/Log/ProgramName.h"

#include <QByteArray>
#include <QString>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

namespace quillon {

namespace {

/// Behind the name of the program.
constexpr auto help =
    " [LOG]\n"
    "\n"
    "Zeigt, bearbeitet und prüft ein Log des Amateurfunks: ADIF, ADX, Cabrillo oder EDI.\n"
    "Ohne LOG beginnt ein neues. Ein Name, der mit einem Strich beginnt, wird ./-name geschrieben.\n"
    "\n"
    "Optionen\n"
    "  -h, --help   Zeigt diese Hilfe\n"
    "  --version    Zeigt die Version\n"
    "\n"
    "Für Skripte gibt es tallyrig, das ohne Fenster auskommt.\n";

constexpr int failed = 2;

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
