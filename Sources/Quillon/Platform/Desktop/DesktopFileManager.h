// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/FileManager.h"

namespace quillon {

/// The one that the desktop opens for a folder.
class DesktopFileManager : public FileManager {
  public:
    void show(const QString& folder) override;
    void select(const QStringList& paths) override;
};

}  // namespace quillon
