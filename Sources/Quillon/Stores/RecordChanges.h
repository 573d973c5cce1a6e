// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFRecordList.h"
#include "Tallyrig/Log/UUID.h"

#include <string>
#include <vector>

namespace quillon {

/// What a step back or forth in the history brought about, so that it can be shown.
struct RecordChanges {
    /// The records that the log holds anew or with other fields, in its order. Those that it no longer holds
    /// are not among them.
    std::vector<tallyrig::UUID> records;
    /// The name of the field in which the first of `records` differs from before, in upper case; of several
    /// the first. Empty if that record is new, or if there is none.
    std::string fieldName;
};

/// What of `before` is otherwise in `after`. Records that both hold are in the same order in both.
/// Cost: a walk along the lists that does not look into what they share.
RecordChanges changesBetween(const tallyrig::ADIFRecordList& before, const tallyrig::ADIFRecordList& after);

}  // namespace quillon
