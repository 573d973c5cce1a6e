// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/Files/Descriptor.h"
#include "Quillon/Platform/Kept/KeptNote.h"
#include "Tallyrig/Log/ADIFDocument.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <variant>

namespace quillon {

class ImageSink;

/// One file in the folder of kept things: blocks one behind the other, each with a note and a content of its
/// own. The latest note holds; what is kept is the latest whole content with all changes behind it.
///
/// A block counts when it is complete, so that a program may die, or the disk be full, at any moment: what
/// was there before still holds. Whoever works on the log in it holds a lock on the file, which ends with the
/// process.
class KeptFile {
  public:
    enum class Content : std::uint8_t { none, wholeLog, change, bytes };
    enum class Lock { taken, inUse };

    /// A new file at `path`, locked; or the error number, EEXIST if there is one.
    static std::variant<KeptFile, int> create(const std::string& path);
    /// A file that `create` has made, to read it or to write to it; absent if there is none or it is
    /// another's.
    enum class Access { read, write };
    static std::optional<KeptFile> open(const std::string& path, Access access);

    /// Whether a program works on it.
    bool isInUse() const;
    /// For a file opened for writing.
    Lock lock() const;

    /// The latest note; absent if no block is complete.
    const std::optional<KeptNote>& note() const { return latest; }
    std::uint64_t size() const { return end; }
    /// The number of changes behind the latest whole log, and the bytes of both.
    std::uint64_t changes() const { return changeCount; }
    std::uint64_t changeBytes() const { return bytesOfChanges; }
    std::uint64_t wholeBytes() const { return bytesOfWhole; }

    /// Adds a block with what `write` puts into the sink, and waits until it is on the disk. The error
    /// number, or 0; after an error the file is as it was.
    int append(const KeptNote& note, Content content, const std::function<void(ImageSink&)>& write);

    /// What is kept; absent if it is damaged, or the file holds the other kind. Cost: reads it all.
    std::optional<tallyrig::ADIFDocument> readLog() const;
    std::optional<std::string> readBytes() const;

    /// Gives up the first block whose content is damaged and what is behind it, of a file that `readLog` has
    /// read and that is open for writing: nothing would be read of what is added there. Cost: reads it all.
    void cutDamage();

  private:
    explicit KeptFile(Descriptor opened) : file(std::move(opened)) {}
    void findBlocks();
    void count(const KeptNote& note, Content content, std::uint64_t bytes);

    Descriptor file;
    std::optional<KeptNote> latest;
    std::uint64_t end = 0;  ///< Behind the last complete block.
    std::uint64_t changeCount = 0;
    std::uint64_t bytesOfChanges = 0;
    std::uint64_t bytesOfWhole = 0;
};

}  // namespace quillon
