// SPDX-License-Identifier: GPL-3.0-or-later
#include "TallyrigTool/Console.h"

#include "Quillon/Platform/Files/Descriptor.h"
#include "Quillon/Platform/Files/Files.h"
#include "Quillon/Platform/Files/SystemError.h"
#include "Tallyrig/Text/Decoding.h"
#include "Tallyrig/Text/VisibleText.h"

#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#include <utility>
#include <variant>

namespace tallyrig::tool {

namespace {

constexpr std::size_t pieceSize = 256 * 1024;

}  // namespace

void Output::write(std::string_view text) {
    if (held.size() + text.size() >= pieceSize) {
        flush();
    }
    if (text.size() >= pieceSize) {
        put(text);
    } else {
        held += text;
    }
}

void Output::flush() {
    put(std::exchange(held, {}));
}

void Output::put(std::string_view text) {
    if (const int error = quillon::writeAll(STDOUT_FILENO, text)) {
        throw Failure{"Die Standardausgabe konnte nicht geschrieben werden: " +
                      quillon::systemErrorSentence(error)};
    }
}

void complain(std::string_view message) {
    // Where even this cannot be written the exit status has to do.
    quillon::writeAll(STDERR_FILENO, "tallyrig: " + visible(message) + "\n");
}

void prepareStandardStreams() {
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
        if (::fcntl(stream, F_GETFD) == -1) {
            // The wrong direction on purpose: to use the stream fails as it does while it is closed.
            ::open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY);
        }
    }
}

std::string readStandardInput() {
    static bool wasRead = false;
    if (wasRead) {
        throw Failure{"-: Die Standardeingabe kann nur einmal gelesen werden."};
    }
    wasRead = true;
    std::variant<std::string, quillon::FileError> result = quillon::readStandardInput();
    if (const auto* const error = std::get_if<quillon::FileError>(&result)) {
        throw Failure{"-: Die Standardeingabe konnte nicht gelesen werden: " + error->message};
    }
    return std::get<std::string>(std::move(result));
}

std::string visible(std::string_view text) {
    return text::visibleText(text::repaired(text));
}

std::string counted(std::size_t number, std::string_view singular, std::string_view plural) {
    return std::to_string(number) + " " + std::string(number == 1 ? singular : plural);
}

}  // namespace tallyrig::tool
