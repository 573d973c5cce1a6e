// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/Archive/Unpacking.h"

#include <QtPlugin>

#include <functional>
#include <string>
#include <variant>

namespace quillon {

/// `unpack`, as a module of the program brings it: most of its runs unpack nothing, and libarchive brings
/// ten libraries with it. May be asked from any thread.
class Unpacker {
  public:
    using Unpacked = std::variant<std::string, UnpackError>;

    Unpacker() = default;
    Unpacker(const Unpacker&) = delete;
    Unpacker& operator=(const Unpacker&) = delete;
    virtual ~Unpacker() = default;

    virtual Unpacked unpack(const std::string& archive, const std::string& parent,
                            const std::function<bool()>& isWanted) = 0;
};

}  // namespace quillon

Q_DECLARE_INTERFACE(quillon::Unpacker, "quillon.Unpacker/1")
