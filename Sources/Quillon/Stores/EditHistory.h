// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFDocument.h"

#include <cstddef>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quillon {

class FileReading;

/// The states of a log before and behind the present one, for undo and redo.
class EditHistory {
  public:
    /// What a step brings back.
    struct Snapshot {
        tallyrig::ADIFDocument document;
        std::vector<std::string> columns;
        bool isDirty = false;
        std::shared_ptr<const FileReading> reading = {};  ///< The one that gave the log; null for none.
    };

    static constexpr std::size_t mostSteps = 100;

    bool canUndo() const { return !past.empty(); }
    bool canRedo() const { return !future.empty(); }

    /// Enters the state `before` an edit; there is nothing to redo any more. Of more than `mostSteps` the
    /// oldest is forgotten. An edit with the key of the latest one, such as the next letter typed into a
    /// cell, joins its step, unless a step was undone or redone since.
    void commit(Snapshot before, std::optional<std::string> key = std::nullopt);

    /// Takes the latest step back, or forth again: the state to be shown in place of `now`. Absent if there
    /// is none.
    std::optional<Snapshot> undo(Snapshot now);
    std::optional<Snapshot> redo(Snapshot now);

    /// The state from which the latest undo or redo led here; null if an edit came after it. Good until the
    /// history changes.
    const Snapshot* beforeLatestStep() const;

    void clear() { *this = {}; }

  private:
    enum class Latest { edit, undo, redo };

    std::deque<Snapshot> past;  ///< The latest at the end, here and below.
    std::deque<Snapshot> future;
    std::optional<std::string> latestKey;
    Latest latest = Latest::edit;
};

}  // namespace quillon
