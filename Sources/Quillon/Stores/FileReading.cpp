// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/FileReading.h"

#include "Tallyrig/Text/Decoding.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace quillon {

namespace {

using tallyrig::ReadingNote;

std::string_view utf16MarkOf(std::string_view file) {
    const std::string_view mark = file.substr(0, 2);
    return mark == "\xFF\xFE" || mark == "\xFE\xFF" ? mark : std::string_view();
}

bool isContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// Takes the rest of a letter of UTF-8 off that the cut at this end left behind.
void trimFront(std::string& bytes) {
    std::size_t rest = 0;
    while (rest < std::min<std::size_t>(3, bytes.size()) && isContinuation(bytes[rest])) {
        ++rest;
    }
    bytes.erase(0, rest);
}
void trimBack(std::string& bytes) {
    for (int rest = 0; rest < 3 && !bytes.empty() && isContinuation(bytes.back()); ++rest) {
        bytes.pop_back();
    }
    if (!bytes.empty() && static_cast<unsigned char>(bytes.back()) >= 0xC0U) {
        bytes.pop_back();
    }
}

std::size_t hashOf(std::string_view bytes) {
    return std::hash<std::string_view>()(bytes);
}

}  // namespace

FilePieces::FilePieces(std::string_view file, std::span<const ReadingNote> notes)
    : fileSize(file.size()), utf16Mark(utf16MarkOf(file)) {
    if (notes.empty()) {
        return;
    }
    // Even, for the letters of UTF-16.
    side = std::min(widestSide, mostBytes / (2 * notes.size())) / 2 * 2;
    std::size_t begin = 0;
    std::size_t end = 0;
    const auto keep = [&] {
        if (end > begin) {
            pieces.push_back({begin, std::string(file.substr(begin, end - begin))});
        }
    };
    for (const ReadingNote& note : notes) {
        const std::size_t from = note.offset - std::min(note.offset, side);
        if (from > end) {
            keep();
            begin = from;
        }
        end = std::min(note.offset + side, file.size());
    }
    keep();
}

FilePlace FilePieces::around(const ReadingNote& note) const {
    FilePlace place;
    place.line = note.line;
    const auto next = std::ranges::upper_bound(pieces, note.offset, {}, &Piece::begin);
    if (next == pieces.begin()) {
        return place;
    }
    const Piece& piece = *(next - 1);
    const std::size_t at = std::min(note.offset - piece.begin, piece.bytes.size());
    std::size_t from = at - std::min(at, side);
    place.isCutBefore = piece.begin + from > 0;
    place.isCutBehind = note.offset + side < fileSize;
    if (!place.isCutBefore && note.offset >= utf16Mark.size()) {
        from = utf16Mark.size();
    }
    place.before = piece.bytes.substr(from, at - from);
    place.behind = piece.bytes.substr(at, side);
    if (utf16Mark.empty()) {
        if (place.isCutBefore) {
            trimFront(place.before);
        }
        if (place.isCutBehind) {
            trimBack(place.behind);
        }
    } else {
        place.before = tallyrig::text::fromUTF16(utf16Mark + place.before).value_or("");
        place.behind = tallyrig::text::fromUTF16(utf16Mark + place.behind).value_or("");
    }
    return place;
}

bool OpenedFile::holds(std::string_view bytes) const {
    return bytes.size() == size && hashOf(bytes) == hash;
}

FileReading::FileReading(std::shared_ptr<const OpenedFile> file, std::string_view bytes,
                         const tallyrig::LogReader::Log& log)
    : openedFile(std::move(file)), readingReport(log.report), pieces(bytes, readingReport.notes()) {
    const auto& recordList = log.document.records();
    for (const ReadingNote& note : readingReport.notes()) {
        const bool isThere = note.recordIndex && *note.recordIndex < recordList.size();
        records.push_back(isThere ? std::optional(recordList[*note.recordIndex].id()) : std::nullopt);
    }
}

FileReading::FileReading(const QString& path, std::string_view bytes, const tallyrig::LogReader::Log& log)
    // The bytes are looked at once more only where they may be read again.
    : FileReading(std::make_shared<const OpenedFile>(
                      OpenedFile{path, bytes.size(), log.report.repair() ? hashOf(bytes) : 0}),
                  bytes, log) {}

FileReading::FileReading(const FileReading& former, std::string_view bytes,
                         const tallyrig::LogReader::Log& log)
    : FileReading(former.openedFile, bytes, log) {}

}  // namespace quillon
