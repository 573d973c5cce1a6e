// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QFile>
#include <QTemporaryDir>

namespace quillon::testing {

/// A home for the run of a test program, in which Qt and what it stands on may leave what they like: the
/// user's settings and caches are not touched. To be made before the application object.
class OwnHome {
  public:
    OwnHome() {
        const QByteArray home = QFile::encodeName(folder.path());
        qputenv("HOME", home);
        for (const char* const variable :
             {"XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"}) {
            qputenv(variable, home);
        }
    }

  private:
    QTemporaryDir folder;
};

}  // namespace quillon::testing
