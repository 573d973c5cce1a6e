// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/CrossCheck/RankingModel.h"

#include "Quillon/Catalogue/ScoreWords.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Quillon/Views/CrossCheck/Quota.h"
#include "Tallyrig/Text/VisibleText.h"

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

using tallyrig::CrossCheckScore;
using tallyrig::CrossCheckStatus;
using tallyrig::CrossCheckSummary;

using Column = RankingModel::Column;

QString shown(std::string_view text) {
    return toQString(tallyrig::text::visibleText(cutToShow(text)));
}

QString number(std::int64_t figure) {
    return toQString(ScoreWords::number(figure));
}

/// The statuses that a column counts; none for the columns of other figures.
std::vector<CrossCheckStatus> statusesOf(Column column) {
    switch (column) {
        case Column::confirmed:
            return {CrossCheckStatus::confirmed};
        case Column::nil_:
            return {CrossCheckStatus::notInLog};
        case Column::bustedCall:
            return {CrossCheckStatus::bustedCall};
        case Column::bustedExchange:
            return {CrossCheckStatus::bustedExchange};
        case Column::mismatch:
            return {CrossCheckStatus::timeMismatch, CrossCheckStatus::bandModeMismatch};
        case Column::unique:
            return {CrossCheckStatus::unique};
        case Column::noLog:
            return {CrossCheckStatus::notCheckable};
        default:
            return {};
    }
}

QString heading(Column column) {
    switch (column) {
        case Column::rank:
            return QStringLiteral("Rang");
        case Column::owner:
            return QStringLiteral("Inhaber / Log");
        case Column::qsos:
            return QStringLiteral("QSOs");
        case Column::quota:
            return QStringLiteral("Quote");
        case Column::claimed:
            return QStringLiteral("Punkte\ngemeldet");
        case Column::checked:
            return QStringLiteral("Punkte\ngeprüft");
        case Column::confirmed:
            return QStringLiteral("bestätigt");
        case Column::nil_:
            return QStringLiteral("NIL");
        case Column::bustedCall:
            return QStringLiteral("Busted\nCall");
        case Column::bustedExchange:
            return QStringLiteral("Busted\nExchange");
        case Column::mismatch:
            return QStringLiteral("Zeit/Band\nabweichend");
        case Column::unique:
            return QStringLiteral("Unique");
        case Column::noLog:
            return QStringLiteral("ohne Log");
    }
    return {};
}

std::vector<Column> columnsShown(bool isScored) {
    std::vector<Column> columns;
    for (int column = 0; column <= static_cast<int>(Column::noLog); ++column) {
        const auto shownColumn = static_cast<Column>(column);
        const bool needsScores =
            shownColumn == Column::rank || shownColumn == Column::claimed || shownColumn == Column::checked;
        if (isScored || !needsScores) {
            columns.push_back(shownColumn);
        }
    }
    return columns;
}

/// How the points of a log come about.
QString pointsHelp(const CrossCheckScore& score) {
    const auto& checked = score.checked;
    QStringList lines;
    lines.append(number(checked.qsoPoints) + QStringLiteral(" QSO-Punkte × ") +
                 number(checked.multiplierCount) + QStringLiteral(" Multiplikatoren"));
    QString removed =
        number(static_cast<std::int64_t>(checked.removedQSOs)) + QStringLiteral(" QSO(s) gestrichen");
    if (checked.penaltyPoints >= 1) {
        removed += QStringLiteral(", ") + number(checked.penaltyPoints) + QStringLiteral(" Strafpunkte");
    }
    lines.append(removed);
    QStringList place;
    if (!score.station.dxcc.empty()) {
        place.append(QStringLiteral("DXCC ") + shown(score.station.dxcc));
    }
    for (const std::string& value : {score.station.continent, score.station.gridSquare}) {
        if (!value.empty()) {
            place.append(shown(value));
        }
    }
    if (!place.isEmpty()) {
        lines.append(QStringLiteral("Standort: ") + place.join(QStringLiteral(", ")));
    }
    return lines.join(QLatin1Char('\n'));
}

}  // namespace

void RankingModel::setResult(const tallyrig::CrossCheckReport& report,
                             const tallyrig::CrossCheckScores& scores) {
    beginResetModel();
    isScored = !scores.empty();
    columns = columnsShown(isScored);
    rows.clear();
    rows.reserve(report.summaries().size());
    for (const CrossCheckSummary& summary : report.summaries()) {
        Row row{.summary = summary, .pointsHelp = {}};
        if (const auto score = scores.find(summary.logID); score != scores.end()) {
            row.claimed = score->second.claimed.total;
            row.checked = score->second.checked.total;
            row.pointsHelp = pointsHelp(score->second);
        }
        rows.push_back(std::move(row));
    }
    if (isScored) {
        std::ranges::stable_sort(rows, std::ranges::greater{}, &Row::checked);
    }
    endResetModel();
}

tallyrig::UUID RankingModel::logAt(int row) const {
    return rows[static_cast<std::size_t>(row)].summary.logID;
}

int RankingModel::rowOf(tallyrig::UUID log) const {
    const auto row = std::ranges::find(rows, log, [](const Row& shownRow) { return shownRow.summary.logID; });
    return row == rows.end() ? -1 : static_cast<int>(row - rows.begin());
}

int RankingModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows.size());
}

int RankingModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(columns.size());
}

QVariant RankingModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    const Row& row = rows[static_cast<std::size_t>(index.row())];
    const Column column = columnAt(index.column());
    switch (role) {
        case Qt::DisplayRole:
            return text(row, index.row(), column);
        case Qt::TextAlignmentRole:
            return QVariant(column == Column::owner ? Qt::AlignLeft | Qt::AlignVCenter
                                                    : Qt::AlignRight | Qt::AlignVCenter);
        case Qt::ToolTipRole: {
            const bool isPoints = column == Column::claimed || column == Column::checked;
            return plainToolTip(isPoints && !row.pointsHelp.isEmpty()
                                    ? row.pointsHelp
                                    : QStringLiteral("Befunde dieses Logs anzeigen"));
        }
        case Qt::AccessibleTextRole:
            return QString(heading(column).replace(QLatin1Char('\n'), QLatin1Char(' ')) +
                           QStringLiteral(": ") + text(row, index.row(), column));
        case nameRole:
            return shown(row.summary.name);
        case toneRole:
            return static_cast<int>(tone(row, column));
        default:
            return {};
    }
}

QVariant RankingModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) {
        return {};
    }
    const Column column = columnAt(section);
    switch (role) {
        case Qt::DisplayRole:
            return heading(column);
        case Qt::TextAlignmentRole:
            return QVariant(column == Column::owner ? Qt::AlignLeft | Qt::AlignBottom
                                                    : Qt::AlignRight | Qt::AlignBottom);
        case Qt::ToolTipRole:
            return column == Column::quota
                       ? QStringLiteral("Anteil fehlerfreier QSOs an den prüfbaren (ohne Unique / ohne Log)")
                       : QString();
        default:
            return {};
    }
}

QString RankingModel::text(const Row& row, int place, Column column) const {
    const tallyrig::CrossCheckCounts& counts = row.summary.counts;
    switch (column) {
        case Column::rank:
            return QString::number(place + 1) + QLatin1Char('.');
        case Column::owner:
            return row.summary.owner.empty() ? QStringLiteral("(Inhaber unbekannt)")
                                             : shown(row.summary.owner);
        case Column::qsos:
            return number(static_cast<std::int64_t>(counts.total()));
        case Column::quota:
            return Quota{counts.accuracy()}.text();
        case Column::claimed:
            return number(row.claimed);
        case Column::checked:
            return number(row.checked);
        default:
            break;
    }
    std::size_t sum = 0;
    for (const CrossCheckStatus status : statusesOf(column)) {
        sum += counts.count(status);
    }
    return number(static_cast<std::int64_t>(sum));
}

Tone RankingModel::tone(const Row& row, Column column) {
    if (column == Column::quota) {
        return Quota{row.summary.counts.accuracy()}.tone();
    }
    return column == Column::owner && row.summary.owner.empty() ? Tone::error : Tone::plain;
}

}  // namespace quillon
