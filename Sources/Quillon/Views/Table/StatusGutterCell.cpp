// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Table/StatusGutterCell.h"

#include "Quillon/Views/Controls/Icons.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Tallyrig/Text/VisibleText.h"

#include <QIcon>
#include <QPainter>
#include <QStringList>

#include <cstddef>
#include <string_view>

namespace quillon {
namespace {

constexpr int iconSizePx = 14;
/// A record can be the duplicate of a hundred thousand others, which its message names one by one.
constexpr std::size_t longestToolTip = 4000;  // Bytes.

}  // namespace

void StatusGutterCell::paint(QPainter& painter, const QRectF& area) const {
    if (!severity) {
        return;
    }
    QRect place(0, 0, iconSizePx, iconSizePx);
    place.moveCenter(area.toRect().center());
    severityIcon(*severity).paint(&painter, place);
}

QString StatusGutterCell::toolTip() const {
    QStringList lines;
    std::size_t room = longestToolTip;
    for (const std::string& message : messages) {
        const std::string_view front = cutToShow(message, room);
        const bool isCut = front.size() < message.size();
        lines.append(toQString(tallyrig::text::visibleText(front)) +
                     (isCut ? QStringLiteral("…") : QString()));
        if (isCut) {
            break;
        }
        room -= front.size();
    }
    return lines.join(QLatin1Char('\n'));
}

}  // namespace quillon
