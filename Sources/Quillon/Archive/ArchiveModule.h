// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/Archive/Unpacker.h"

#include <QObject>

namespace quillon {

/// The root of the module: unpacks with libarchive.
class ArchiveModule : public QObject, public Unpacker {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "quillon.Unpacker/1")
    Q_INTERFACES(quillon::Unpacker)

  public:
    Unpacked unpack(const std::string& archive, const std::string& parent,
                    const std::function<bool()>& isWanted) override;
};

}  // namespace quillon
