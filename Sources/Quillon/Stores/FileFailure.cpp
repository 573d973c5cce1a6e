// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/FileFailure.h"

#include "Tallyrig/Text/VisibleText.h"

namespace quillon {

QString fileFailure(const QString& what, const QString& path, const std::string& why) {
    const QString lastPart = path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
    const QString name = lastPart.isEmpty() ? path : lastPart;
    return what + QStringLiteral("\n„") +
           QString::fromStdString(tallyrig::text::visibleText(name.toStdString() + "“: " + why));
}

}  // namespace quillon
