// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/EditHistory.h"

#include "Tallyrig/Text/Text.h"

#include <utility>

namespace quillon {

void EditHistory::commit(Snapshot before, std::optional<std::string> key) {
    if (key && latestKey && tallyrig::text::equal(*key, *latestKey)) {
        return;
    }
    past.push_back(std::move(before));
    if (past.size() > mostSteps) {
        past.pop_front();
    }
    future.clear();
    latestKey = std::move(key);
    latest = Latest::edit;
}

std::optional<EditHistory::Snapshot> EditHistory::undo(Snapshot now) {
    if (past.empty()) {
        return std::nullopt;
    }
    future.push_back(std::move(now));
    std::optional<Snapshot> shown = std::move(past.back());
    past.pop_back();
    latestKey.reset();
    latest = Latest::undo;
    return shown;
}

std::optional<EditHistory::Snapshot> EditHistory::redo(Snapshot now) {
    if (future.empty()) {
        return std::nullopt;
    }
    past.push_back(std::move(now));
    std::optional<Snapshot> shown = std::move(future.back());
    future.pop_back();
    latestKey.reset();
    latest = Latest::redo;
    return shown;
}

const EditHistory::Snapshot* EditHistory::beforeLatestStep() const {
    switch (latest) {
        case Latest::undo:
            return &future.back();
        case Latest::redo:
            return &past.back();
        case Latest::edit:
            break;
    }
    return nullptr;
}

}  // namespace quillon
