// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QObject;

namespace quillon {

/// The root object of a module: a part of the program that is loaded only where it is needed. Found in the
/// folder `../lib/quillon` beside that of the running program, in the tree where it is built and where it is
/// installed. The first call loads the module, which stays until the program ends, as the object does; null
/// if there is none or it was built for another Qt, which is told on the console.
QObject* moduleRoot(const QString& name);

}  // namespace quillon
