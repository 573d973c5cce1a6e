#include "Quillon/Views/StatusGutterCell.h"

#include "Quillon/Views/Icons.h"
#include "Quillon/Views/Strings.h"

#include <QIcon>
#include <QPainter>
#include <QStringList>

namespace quillon {
namespace {

constexpr int iconSizePx = 14;

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
    return lines.join(QLatin1Char('\n'));
}

}  // namespace quillon
