// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/ChartPainter.h"

#include "Quillon/Platform/Modules.h"

#include <QObject>

namespace quillon {

ChartPainter* chartPainter() {
    return qobject_cast<ChartPainter*>(moduleRoot(QStringLiteral("QuillonCharts")));
}

}  // namespace quillon
