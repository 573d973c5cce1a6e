// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tallyrig::tool {

/// What a command ends with, as `diff` and `grep` have it.
enum class ExitStatus { good = 0, findings = 1, failed = 2 };

/// Thrown where a command cannot go on; `main` prints it and ends with `ExitStatus::failed`.
struct Failure {
    std::string message;  ///< One German sentence, with the file it is about in front.
};

/// Standard output, gathered into large pieces. A piece that cannot be written throws a `Failure`.
class Output {
  public:
    void write(std::string_view text);
    /// Writes what is still held back.
    void flush();

  private:
    void put(std::string_view text);

    std::string held;
};

/// Prints `message` to standard error, the program's name in front.
void complain(std::string_view message);

/// Lets a closed output and a file that may not grow further show themselves as failed writes rather than end
/// the program, and keeps files that are opened later from taking the place of a standard stream that was
/// closed at the start.
void prepareStandardStreams();

/// All of standard input. Throws a `Failure` if it cannot be read, or has been read before.
std::string readStandardInput();

/// `text`, any bytes, for one line of a terminal: `text::visibleText` with U+FFFD for what is no UTF-8.
std::string visible(std::string_view text);

/// `number` in front of the word that goes with it: "1 QSO", "2 QSOs".
std::string counted(std::size_t number, std::string_view singular, std::string_view plural);

}  // namespace tallyrig::tool
