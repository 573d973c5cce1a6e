// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace quillon {

/// A pair of read and write access to one text of the log. It may outlive the store, and then reads as empty
/// and writes nothing.
struct TextBinding {
    std::function<std::string()> read;
    std::function<void(std::string_view)> write;
};

}  // namespace quillon
