// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Formats/LogReader.h"
#include "Tallyrig/Log/ReadingReport.h"
#include "Tallyrig/Log/UUID.h"

#include <QString>

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// A place in a file with what stood around it when the file was read.
struct FilePlace {
    std::size_t line = 1;  ///< Of the place, from 1.
    /// The bytes of the file up to the place and from it on. Those of a file in UTF-16 as UTF-8.
    std::string before;
    std::string behind;
    bool isCutBefore = false;  ///< There is more in front of it.
    bool isCutBehind = false;
};

/// Pieces of a file's bytes: what stands around some places, kept while the file itself is not.
class FilePieces {
  public:
    /// On each side of a place, as long as there are not too many.
    static constexpr std::size_t widestSide = 2048;
    /// However many places there are.
    static constexpr std::size_t mostBytes = 16U << 20U;

    FilePieces() = default;
    /// Around the places of `notes`, the offsets of which ascend. Refers to neither.
    FilePieces(std::string_view file, std::span<const tallyrig::ReadingNote> notes);

    /// `note` is one of those.
    FilePlace around(const tallyrig::ReadingNote& note) const;

  private:
    struct Piece {
        std::size_t begin = 0;
        std::string bytes;
    };

    std::vector<Piece> pieces;  ///< Ascending, none touching the next.
    std::size_t side = 0;
    std::size_t fileSize = 0;
    std::string utf16Mark;  ///< The byte order mark of a file in UTF-16, otherwise empty.
};

/// A file as it was when the user opened it.
struct OpenedFile {
    QString path;
    std::size_t size = 0;
    std::size_t hash = 0;  ///< Of all bytes; 0 where nobody will ask.

    /// Whether the file still has the bytes that it was opened with, if `hash` was taken.
    bool holds(std::string_view bytes) const;
};

/// What one reading of the open log's file said, and what of the file is needed to show it. What other
/// programs do to the file afterwards does not matter: a note is shown with the bytes that it is about.
class FileReading {
  public:
    /// The first reading of a file, which is open from now on.
    FileReading(const QString& path, std::string_view bytes, const tallyrig::LogReader::Log& log);
    /// Another reading of the same file.
    FileReading(const FileReading& former, std::string_view bytes, const tallyrig::LogReader::Log& log);

    /// The same object for all readings since the file was opened.
    const std::shared_ptr<const OpenedFile>& file() const { return openedFile; }
    const tallyrig::ReadingReport& report() const { return readingReport; }

    // `note` is a position in the report's notes.
    /// The record that the note is about, whatever became of it since; absent if there is none.
    std::optional<tallyrig::UUID> recordOf(std::size_t note) const { return records[note]; }
    FilePlace placeOf(std::size_t note) const { return pieces.around(readingReport.notes()[note]); }

  private:
    FileReading(std::shared_ptr<const OpenedFile> file, std::string_view bytes,
                const tallyrig::LogReader::Log& log);

    std::shared_ptr<const OpenedFile> openedFile;
    tallyrig::ReadingReport readingReport;
    std::vector<std::optional<tallyrig::UUID>> records;  ///< By note.
    FilePieces pieces;
};

}  // namespace quillon
