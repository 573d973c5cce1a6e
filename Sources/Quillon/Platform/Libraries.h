// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

namespace quillon {

/// A library that the program stands on.
struct Library {
    QString name;
    QString version;  ///< Of the one that is loaded, where that can tell; otherwise of the one built with.
    QString licence;  ///< Its short name, as SPDX lists it.
};

/// The libraries that the program is linked with, itself or through one of its modules, the largest first.
QList<Library> linkedLibraries();

}  // namespace quillon
