// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

namespace quillon {

enum class KeptKind : std::uint8_t {
    log,         ///< A log with changes that its file does not have.
    formerFile,  ///< What a file held before it was saved over.
};

/// Why something is kept. The numbers stand in files.
enum class KeptReason : std::uint8_t {
    inHand = 0,  ///< Its program still works on it, or died with it.
    newLog = 1,
    otherLog = 2,
    windowClosed = 3,
    sessionEnded = 4,
    terminated = 5,
    displayLost = 6,
    overwritten = 7,
};

/// What a list says of a kept thing without reading it.
struct KeptNote {
    KeptKind kind = KeptKind::log;
    KeptReason reason = KeptReason::inHand;
    bool isDismissed = false;  ///< The user was told of it and has said so.
    std::string path;          ///< Of the log's file, UTF-8; empty for a log without one.
    std::uint64_t records = 0;
    std::int64_t timeMs = 0;  ///< Since 1970 in UTC, by the clock of that moment.
    std::uint64_t order = 0;  ///< Ascends from each thing to the next, whatever the clock does.
    std::uint64_t log = 0;    ///< One number for all files in which a program kept one log.
};

}  // namespace quillon
