// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quillon {

/// An open file of the system, closed at the end.
class Descriptor {
  public:
    Descriptor() = default;
    /// Takes over what `open` returned, -1 included.
    explicit Descriptor(int opened) : descriptor(opened) {}
    Descriptor(Descriptor&& other) noexcept;
    Descriptor& operator=(Descriptor&& other) noexcept;
    ~Descriptor() { close(); }

    bool isOpen() const { return descriptor >= 0; }
    int number() const { return descriptor; }
    void close();

  private:
    int descriptor = -1;
};

/// All bytes up to the end, or the error number. `expected` is their number as far as it is known: files of
/// the kernel say 0, and others may grow or shrink while they are read.
struct ReadBytes {
    std::string bytes;
    int error = 0;
};
ReadBytes readAll(int descriptor, std::size_t expected);

/// Writes all of `text` and returns 0, or the error number that stopped it.
int writeAll(int descriptor, std::string_view text);

}  // namespace quillon
