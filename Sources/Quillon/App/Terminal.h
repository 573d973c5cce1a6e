// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMessageLogContext>

#include <optional>
#include <span>

class QString;

/// What the program says to somebody at a terminal, without a window.
namespace quillon {

/// Prints what `--help` (`-h`) or `--version` asks for, or else that an option is unknown, and gives the exit
/// status; absent if there is nothing to say. What stands behind `--` is a file, and so is what begins with
/// a dash where a file of that name is. `arguments` are those of the program without its name. Needs no
/// display and no `QApplication`.
std::optional<int> answerOnTerminal(std::span<char* const> arguments);

/// A message handler for the time in which the `QApplication` is made. Where no display can be had Qt would
/// abort behind some lines about its plugins: this ends the program with status 2 and one line in German.
/// Other messages are printed as Qt does it.
void endWithoutDisplay(QtMsgType type, const QMessageLogContext& context, const QString& message);

}  // namespace quillon
