// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <archive.h>
#include <archive_entry.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace quillon::testing {

/// Something in an archive that a test makes, whatever nonsense it is.
struct ArchiveEntry {
    std::string path;
    unsigned int type = AE_IFREG;
    unsigned int mode = 0644;
    std::string content;      ///< Of a file.
    std::string target = {};  ///< Of a link.
    bool isHardLink = false;
};

inline ArchiveEntry folder(std::string path, unsigned int mode = 0755) {
    return {std::move(path), AE_IFDIR, mode, {}};
}
inline ArchiveEntry file(std::string path, std::string content = "x", unsigned int mode = 0644) {
    return {std::move(path), AE_IFREG, mode, std::move(content)};
}
inline ArchiveEntry link(std::string path, std::string target) {
    return {std::move(path), AE_IFLNK, 0777, {}, std::move(target)};
}
inline ArchiveEntry hardLink(std::string path, std::string target) {
    return {std::move(path), AE_IFREG, 0644, {}, std::move(target), true};
}

namespace detail {

inline std::string written(archive* writer, const auto& write) {
    std::string bytes;
    archive_write_set_bytes_in_last_block(writer, 1);
    archive_write_open(
        writer, &bytes, nullptr,
        [](archive*, void* into, const void* data, std::size_t size) {
            static_cast<std::string*>(into)->append(static_cast<const char*>(data), size);
            return static_cast<la_ssize_t>(size);
        },
        nullptr);
    write();
    archive_write_close(writer);
    archive_write_free(writer);
    return bytes;
}

}  // namespace detail

inline std::string tar(const std::vector<ArchiveEntry>& entries) {
    archive* const writer = archive_write_new();
    archive_write_set_format_pax_restricted(writer);
    return detail::written(writer, [&] {
        for (const ArchiveEntry& each : entries) {
            archive_entry* const entry = archive_entry_new();
            archive_entry_set_pathname(entry, each.path.c_str());
            archive_entry_set_filetype(entry, each.type);
            archive_entry_set_perm(entry, each.mode);
            archive_entry_set_size(entry, static_cast<la_int64_t>(each.content.size()));
            if (each.isHardLink) {
                archive_entry_set_hardlink(entry, each.target.c_str());
            } else if (!each.target.empty()) {
                archive_entry_set_symlink(entry, each.target.c_str());
            }
            archive_write_header(writer, entry);
            archive_write_data(writer, each.content.data(), each.content.size());
            archive_entry_free(entry);
        }
    });
}

inline std::string xz(const std::string& bytes) {
    archive* const writer = archive_write_new();
    archive_write_set_format_raw(writer);
    archive_write_add_filter_xz(writer);
    archive_write_set_filter_option(writer, "xz", "compression-level", "0");
    return detail::written(writer, [&] {
        archive_entry* const entry = archive_entry_new();
        archive_entry_set_filetype(entry, AE_IFREG);
        archive_write_header(writer, entry);
        archive_write_data(writer, bytes.data(), bytes.size());
        archive_entry_free(entry);
    });
}

/// A .tar.xz.
inline std::string archiveOf(const std::vector<ArchiveEntry>& entries) {
    return xz(tar(entries));
}

}  // namespace quillon::testing
