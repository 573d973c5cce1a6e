// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/Kept/KeptFile.h"

#include "Quillon/Platform/Kept/ImageBytes.h"
#include "Quillon/Platform/Kept/LogImage.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <stdexcept>
#include <string_view>
#include <vector>

namespace quillon {

namespace {

constexpr std::string_view fileMark = "quillon-kept-1\n";
constexpr std::uint64_t longestNote = 100'000;

/// In front of each block. Written last, so that a block that was not finished begins with zeros.
struct BlockHead {
    std::uint64_t noteBytes = 0;
    std::uint64_t contentBytes = 0;
    std::uint64_t contentSum = 0;
    std::uint64_t sum = 0;  ///< Of the three above and the note.
};

std::uint64_t sumOf(const BlockHead& head, std::string_view note) {
    std::string summed(reinterpret_cast<const char*>(&head), offsetof(BlockHead, sum));
    return checkSumOfAll(summed.append(note));
}

std::string noteBytes(const KeptNote& note, KeptFile::Content content) {
    std::string bytes;
    ImageSink sink([&](std::string_view piece) { bytes.append(piece); });
    sink.number(static_cast<std::uint64_t>(content));
    sink.number(static_cast<std::uint64_t>(note.kind));
    sink.number(static_cast<std::uint64_t>(note.reason));
    sink.number(note.isDismissed ? 1 : 0);
    sink.number(note.records);
    sink.number(static_cast<std::uint64_t>(note.timeMs));
    sink.number(note.order);
    sink.number(note.log);
    sink.text(note.path);
    sink.finish();
    return bytes;
}

struct ReadNote {
    KeptNote note;
    KeptFile::Content content = KeptFile::Content::none;
};

std::optional<ReadNote> readNote(std::string_view bytes) {
    ImageSource source(bytes);
    const auto number = [&source](std::uint64_t most) {
        const auto value = source.number();
        return value && *value <= most ? value : std::nullopt;
    };
    constexpr std::uint64_t any = ~std::uint64_t(0);
    const auto content = number(static_cast<std::uint64_t>(KeptFile::Content::bytes));
    const auto kind = number(static_cast<std::uint64_t>(KeptKind::formerFile));
    const auto reason = number(static_cast<std::uint64_t>(KeptReason::overwritten));
    const auto isDismissed = number(1);
    const auto records = number(any);
    const auto time = number(any);
    const auto order = number(any);
    const auto log = number(any);
    const auto path = source.text();
    if (!content || !kind || !reason || !isDismissed || !path) {
        return std::nullopt;
    }
    return ReadNote{{static_cast<KeptKind>(*kind), static_cast<KeptReason>(*reason), *isDismissed == 1,
                     std::string(*path), *records, static_cast<std::int64_t>(*time), *order, *log},
                    static_cast<KeptFile::Content>(*content)};
}

bool readAt(int descriptor, std::uint64_t offset, char* bytes, std::size_t count) {
    while (count > 0) {
        const ssize_t got = ::pread(descriptor, bytes, count, static_cast<off_t>(offset));
        if (got <= 0) {
            if (got < 0 && errno == EINTR) {
                continue;
            }
            return false;
        }
        bytes += got;
        count -= static_cast<std::size_t>(got);
        offset += static_cast<std::uint64_t>(got);
    }
    return true;
}

int writeAt(int descriptor, std::uint64_t offset, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::pwrite(descriptor, bytes.data(), bytes.size(), static_cast<off_t>(offset));
        if (written < 0 && errno != EINTR) {
            return errno;
        }
        const auto count = static_cast<std::size_t>(std::max<ssize_t>(written, 0));
        bytes.remove_prefix(count);
        offset += count;
    }
    return 0;
}

std::uint64_t sizeOf(int descriptor) {
    struct stat status = {};
    return ::fstat(descriptor, &status) == 0 ? static_cast<std::uint64_t>(status.st_size) : 0;
}

/// A block that is complete, as far as its head says.
struct Block {
    BlockHead head;
    ReadNote note;
    std::uint64_t contentBegin = 0;
    std::uint64_t end() const { return contentBegin + head.contentBytes; }
};

std::optional<Block> blockAt(int descriptor, std::uint64_t offset, std::uint64_t fileSize) {
    Block block;
    if (offset + sizeof(BlockHead) > fileSize ||
        !readAt(descriptor, offset, reinterpret_cast<char*>(&block.head), sizeof(BlockHead))) {
        return std::nullopt;
    }
    const std::uint64_t noteBegin = offset + sizeof(BlockHead);
    const BlockHead& head = block.head;
    if (head.noteBytes == 0 || head.noteBytes > longestNote || head.noteBytes > fileSize - noteBegin ||
        head.contentBytes > fileSize - noteBegin - head.noteBytes) {
        return std::nullopt;
    }
    std::string bytes(head.noteBytes, '\0');
    if (!readAt(descriptor, noteBegin, bytes.data(), bytes.size()) || sumOf(head, bytes) != head.sum) {
        return std::nullopt;
    }
    auto note = readNote(bytes);
    if (!note) {
        return std::nullopt;
    }
    block.note = *std::move(note);
    block.contentBegin = noteBegin + head.noteBytes;
    return block;
}

/// Those from the front of the file up to the first that is not complete.
std::vector<Block> blocksIn(int descriptor) {
    const std::uint64_t fileSize = sizeOf(descriptor);
    std::vector<Block> blocks;
    std::uint64_t offset = fileMark.size();
    while (auto block = blockAt(descriptor, offset, fileSize)) {
        offset = block->end();
        blocks.push_back(*std::move(block));
    }
    return blocks;
}

/// The content, absent if it is not what was written.
std::optional<std::string> contentOf(int descriptor, const Block& block) {
    try {
        std::string bytes(block.head.contentBytes, '\0');
        const bool isWhole = readAt(descriptor, block.contentBegin, bytes.data(), bytes.size()) &&
                             checkSumOfAll(bytes) == block.head.contentSum;
        return isWhole ? std::optional(std::move(bytes)) : std::nullopt;
    } catch (const std::length_error&) {
        return std::nullopt;
    }
}

/// A lock of the open file, not of the process: two that one program opened do not share it, and asking for
/// it does not take it. Absent where the file system knows none.
std::optional<KeptFile::Lock> lockWith(int descriptor, int command) {
    struct flock wanted = {};
    wanted.l_type = F_WRLCK;
    wanted.l_whence = SEEK_SET;
    if (::fcntl(descriptor, command, &wanted) != 0) {
        return errno == EAGAIN || errno == EACCES ? std::optional(KeptFile::Lock::inUse) : std::nullopt;
    }
    const bool isOthers = command == F_OFD_GETLK && wanted.l_type != F_UNLCK;
    return isOthers ? KeptFile::Lock::inUse : KeptFile::Lock::taken;
}

}  // namespace

std::variant<KeptFile, int> KeptFile::create(const std::string& path) {
    KeptFile created(
        Descriptor(::open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600)));
    if (!created.file.isOpen()) {
        return errno;
    }
    // Somebody who tidies up may have had it for a moment: then this name is lost.
    struct stat status = {};
    const bool isOwn =
        created.lock() == Lock::taken && ::fstat(created.file.number(), &status) == 0 && status.st_nlink > 0;
    const int error = isOwn ? writeAt(created.file.number(), 0, fileMark) : EEXIST;
    if (error != 0) {
        if (isOwn) {
            ::unlink(path.c_str());
        }
        return error;
    }
    created.end = fileMark.size();
    return created;
}

std::optional<KeptFile> KeptFile::open(const std::string& path, Access access) {
    const int flags = (access == Access::write ? O_RDWR : O_RDONLY) | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    KeptFile opened(Descriptor(::open(path.c_str(), flags)));
    struct stat status = {};
    if (!opened.file.isOpen() || ::fstat(opened.file.number(), &status) != 0 || !S_ISREG(status.st_mode)) {
        return std::nullopt;
    }
    std::string mark(fileMark.size(), '\0');
    if (!readAt(opened.file.number(), 0, mark.data(), mark.size()) || mark != fileMark) {
        return std::nullopt;
    }
    opened.findBlocks();
    return opened;
}

bool KeptFile::isInUse() const {
    return lockWith(file.number(), F_OFD_GETLK) == Lock::inUse;
}

KeptFile::Lock KeptFile::lock() const {
    return lockWith(file.number(), F_OFD_SETLK).value_or(Lock::taken);
}

void KeptFile::findBlocks() {
    end = fileMark.size();
    for (const Block& block : blocksIn(file.number())) {
        count(block.note.note, block.note.content, block.end() - end);
    }
}

void KeptFile::count(const KeptNote& note, Content content, std::uint64_t bytes) {
    latest = note;
    end += bytes;
    if (content == Content::wholeLog) {
        bytesOfWhole = bytes;
        bytesOfChanges = changeCount = 0;
    } else if (content == Content::change) {
        bytesOfChanges += bytes;
        ++changeCount;
    }
}

int KeptFile::append(const KeptNote& note, Content content, const std::function<void(ImageSink&)>& write) {
    const std::string bytes = noteBytes(note, content);
    if (bytes.size() > longestNote) {
        return ENAMETOOLONG;
    }
    BlockHead head;
    head.noteBytes = bytes.size();
    int error = writeAt(file.number(), end + sizeof head, bytes);
    if (content != Content::none) {
        ImageSink sink([&](std::string_view piece) {
            if (error == 0) {
                const std::uint64_t place = end + sizeof head + bytes.size() + head.contentBytes;
                error = writeAt(file.number(), place, piece);
            }
            head.contentSum = checkSum(head.contentSum, piece);
            head.contentBytes += piece.size();
        });
        write(sink);
        sink.finish();
    }
    head.sum = sumOf(head, bytes);
    if (error == 0) {
        error = writeAt(file.number(), end, {reinterpret_cast<const char*>(&head), sizeof head});
    }
    if (error == 0 && ::fdatasync(file.number()) != 0) {
        error = errno;
    }
    if (error != 0) {
        static_cast<void>(::ftruncate(file.number(), static_cast<off_t>(end)));
        return error;
    }
    count(note, content, sizeof head + bytes.size() + head.contentBytes);
    return 0;
}

std::optional<tallyrig::ADIFDocument> KeptFile::readLog() const {
    ImageReader reader;
    bool hasLog = false;
    for (const Block& block : blocksIn(file.number())) {
        const Content kind = block.note.content;
        if (kind == Content::none) {
            continue;
        }
        const auto content = contentOf(file.number(), block);
        if (!content) {
            // What came before is better than nothing.
            break;
        }
        if (kind == Content::wholeLog) {
            hasLog = reader.readImage(*content);
        } else if (!hasLog || kind != Content::change || !reader.readChange(*content)) {
            return std::nullopt;
        }
    }
    return hasLog ? std::optional(reader.takeDocument()) : std::nullopt;
}

std::optional<std::string> KeptFile::readBytes() const {
    for (const Block& block : blocksIn(file.number())) {
        if (block.note.content == Content::bytes) {
            return contentOf(file.number(), block);
        }
    }
    return std::nullopt;
}

void KeptFile::cutDamage() {
    std::uint64_t good = fileMark.size();
    for (const Block& block : blocksIn(file.number())) {
        if (!contentOf(file.number(), block)) {
            static_cast<void>(::ftruncate(file.number(), static_cast<off_t>(good)));
            latest.reset();
            bytesOfWhole = bytesOfChanges = changeCount = 0;
            findBlocks();
            return;
        }
        good = block.end();
    }
}

}  // namespace quillon
