// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/Files/Descriptor.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <new>
#include <stdexcept>
#include <utility>

namespace quillon {

Descriptor::Descriptor(Descriptor&& other) noexcept : descriptor(std::exchange(other.descriptor, -1)) {}

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept {
    std::swap(descriptor, other.descriptor);
    return *this;
}

void Descriptor::close() {
    if (isOpen()) {
        ::close(std::exchange(descriptor, -1));
    }
}

ReadBytes readAll(int descriptor, std::size_t expected) {
    try {
        // One byte more than expected lets the last read see the end without growing.
        std::string bytes(std::max<std::size_t>(expected + 1, 4096), '\0');
        std::size_t length = 0;
        while (true) {
            const ssize_t count = ::read(descriptor, bytes.data() + length, bytes.size() - length);
            if (count < 0 && errno != EINTR) {
                return {{}, errno};
            }
            if (count == 0) {
                bytes.resize(length);
                return {std::move(bytes), 0};
            }
            length += static_cast<std::size_t>(std::max<ssize_t>(count, 0));
            if (length == bytes.size()) {
                bytes.resize(bytes.size() * 2);
            }
        }
    } catch (const std::bad_alloc&) {
        return {{}, ENOMEM};
    } catch (const std::length_error&) {
        return {{}, EFBIG};
    }
}

int writeAll(int descriptor, std::string_view text) {
    while (!text.empty()) {
        const ssize_t written = ::write(descriptor, text.data(), text.size());
        if (written < 0 && errno != EINTR) {
            return errno;
        }
        text.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(written, 0)));
    }
    return 0;
}

}  // namespace quillon
