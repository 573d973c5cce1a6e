// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/Files/FileState.h"
#include "Tallyrig/Log/ADIFDocument.h"

#include <QString>

#include <cstdint>
#include <string>

namespace quillon {

/// Whether the log that the file at `path` holds, of whatever format, has these records. False if it cannot
/// be read, or is too large to be read in passing.
bool holdsRecords(const QString& path, const tallyrig::ADIFRecordList& records);

/// The file of a log as it was when that was read from it or written to it.
class KnownFile {
  public:
    /// The file at `path` as it is now, if there is one.
    explicit KnownFile(const QString& path);
    /// The same, but unknown if it was written to after `timeMs`, in milliseconds since 1970.
    static KnownFile asOf(std::int64_t timeMs, const QString& path);

    /// Whether nobody has changed the file at `path`, or has but left the records of `saved` in it; such a
    /// file is known from then on. Another place was never known, and a file that is gone comes again when
    /// the log is saved. Cost: nothing unless it was written to; otherwise reads it.
    bool isStill(const QString& path, const tallyrig::ADIFDocument& saved);
    /// Whether nobody has written to the file, or it is gone. Cost: a look at the folder.
    bool isUntouched() const;

  private:
    std::string name;
    FileState state;
};

}  // namespace quillon
