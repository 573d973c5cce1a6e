#include "Quillon/Views/Table/StatusGutterCell.h"

#include "Quillon/Views/Controls/Icons.h"
#include "Quillon/Views/Controls/Strings.h"

#include <QIcon>
#include <QPainter>
#include <QStringList>

namespace quillon {
namespace {

constexpr int iconSizePx = 14;
/// A record can be the duplicate of a hundred thousand others, which its message names one by one.
constexpr int longestToolTip = 4000;

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
    for (const std::string& message : messages) {
        lines.append(toQString(message));
    }
    const QString text = lines.join(QLatin1Char('\n'));
    return text.size() > longestToolTip ? text.left(longestToolTip) + QStringLiteral("…") : text;
}

}  // namespace quillon
