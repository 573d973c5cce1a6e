#include "TallyrigTool/Console.h"

#include "Tallyrig/Text/Decoding.h"
#include "Tallyrig/Text/VisibleText.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <utility>

namespace tallyrig::tool {

namespace {

constexpr std::size_t pieceSize = 256 * 1024;

/// Writes all of `text` and returns 0, or the error number that stopped it.
int writeAll(int stream, std::string_view text) {
    while (!text.empty()) {
        const ssize_t written = ::write(stream, text.data(), text.size());
        if (written < 0 && errno != EINTR) {
            return errno;
        }
        text.remove_prefix(written < 0 ? 0 : static_cast<std::size_t>(written));
    }
    return 0;
}

std::string reason(int error) {
    switch (error) {
        case EPIPE:
            return "Der Empfänger nimmt nichts mehr an.";
        case ENOSPC:
            return "Es ist kein Platz mehr frei.";
        case EBADF:
            return "Sie ist geschlossen.";
        case EISDIR:
            return "Sie ist ein Ordner.";
        default:
            return std::strerror(error);
    }
}

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
    if (const int error = writeAll(STDOUT_FILENO, text)) {
        throw Failure{"Die Standardausgabe konnte nicht geschrieben werden: " + reason(error)};
    }
}

void complain(std::string_view message) {
    // Where even this cannot be written the exit status has to do.
    writeAll(STDERR_FILENO, "tallyrig: " + visible(message) + "\n");
}

void prepareStandardStreams() {
    std::signal(SIGPIPE, SIG_IGN);
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
    std::string bytes;
    std::size_t size = 0;
    while (true) {
        if (bytes.size() < size + pieceSize) {
            bytes.resize(2 * bytes.size() + pieceSize);
        }
        const ssize_t count = ::read(STDIN_FILENO, bytes.data() + size, bytes.size() - size);
        if (count < 0 && errno != EINTR) {
            throw Failure{"-: Die Standardeingabe konnte nicht gelesen werden: " + reason(errno)};
        }
        if (count == 0) {
            bytes.resize(size);
            return bytes;
        }
        size += count < 0 ? 0 : static_cast<std::size_t>(count);
    }
}

std::string visible(std::string_view text) {
    return text::visibleText(text::repaired(text));
}

std::string counted(std::size_t number, std::string_view singular, std::string_view plural) {
    return std::to_string(number) + " " + std::string(number == 1 ? singular : plural);
}

}  // namespace tallyrig::tool
