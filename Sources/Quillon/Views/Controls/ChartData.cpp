// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/ChartData.h"

#include "Quillon/Views/Controls/Strings.h"
#include "Tallyrig/Text/VisibleText.h"

#include <algorithm>

namespace quillon {

std::size_t ChartData::barCount() const {
    return std::min(entries.size(), mostBars);
}

std::size_t ChartData::highest() const {
    std::size_t highest = 0;
    for (std::size_t entry = 0; entry < barCount(); ++entry) {
        highest = std::max(highest, entries[entry].count);
    }
    return highest;
}

QString ChartData::label(std::size_t entry) const {
    constexpr std::size_t longest = 200;
    return toQString(tallyrig::text::visibleText(cutToShow(entries[entry].label, longest)));
}

QString ChartData::sentence(std::size_t entry) const {
    const std::size_t count = entries[entry].count;
    return QStringLiteral("%1: %2 %3")
        .arg(label(entry), numberText(count), count == 1 ? QStringLiteral("QSO") : QStringLiteral("QSOs"));
}

QString ChartData::line(std::size_t entry) const {
    return label(entry) + QLatin1Char('\t') + QString::number(entries[entry].count) + QLatin1Char('\n');
}

QString ChartData::numbers() const {
    QString text = word + QLatin1Char('\t') + countAxis + QLatin1Char('\n');
    for (std::size_t entry = 0; entry < entries.size(); ++entry) {
        text += line(entry);
    }
    return text;
}

}  // namespace quillon
