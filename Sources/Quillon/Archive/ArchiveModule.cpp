// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Archive/ArchiveModule.h"

namespace quillon {

Unpacker::Unpacked ArchiveModule::unpack(const std::string& archive, const std::string& parent,
                                         const std::function<bool()>& isWanted) {
    return quillon::unpack(archive, parent, isWanted);
}

}  // namespace quillon
