// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/CrossCheck/FindingsCard.h"

#include "Quillon/Catalogue/CrossCheckWords.h"
#include "Quillon/Catalogue/ScoreWords.h"
#include "Quillon/Stores/CrossCheckStore.h"
#include "Quillon/Views/Controls/CalmComboBox.h"
#include "Quillon/Views/Controls/FindingList.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Tallyrig/Text/VisibleText.h"

#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace quillon {

namespace {

using tallyrig::CrossCheckFinding;
using tallyrig::CrossCheckLog;
using tallyrig::CrossCheckStatus;

/// What the picker holds of the filters that are not about one status.
constexpr int problemsItem = -2;
constexpr int allItem = -1;

QString shown(std::string_view text) {
    return toQString(tallyrig::text::visibleText(cutToShow(text)));
}

QString number(std::size_t count) {
    return toQString(ScoreWords::number(static_cast<std::int64_t>(count)));
}

/// "14:05" for what ADIF writes as "1405" or "140500"; empty for less.
QString shownTime(std::string_view time) {
    const QString text = shown(time);
    return text.size() > 3 ? text.left(2) + QLatin1Char(':') + text.mid(2, 2) : QString();
}

/// A place in another log.
QString counterpartText(const CrossCheckFinding& finding, const std::vector<CrossCheckLog>& logs) {
    if (!finding.counterpartLogID || *finding.counterpartLogID == finding.logID) {
        return {};
    }
    const auto other = std::ranges::find(logs, *finding.counterpartLogID, &CrossCheckLog::id);
    return other == logs.end()
               ? QString()
               : shown(other->name) + QStringLiteral(" #") + number(finding.counterpartIndex.value_or(0) + 1);
}

FindingRow rowOf(const CrossCheckFinding& finding, const CrossCheckLog& log,
                 const std::vector<CrossCheckLog>& logs) {
    QStringList notes;
    for (const std::string& note : finding.notes) {
        notes.append(shown(note));
    }
    FindingRow row{.number = QStringLiteral("#") + number(finding.index + 1),
                   .time = {},
                   .call = shown(finding.call),
                   .band = {},
                   .badge = {toQString(label(finding.status)), badgeColor(finding.status)},
                   .text = notes.join(QLatin1Char('\n')),
                   .counterpart = counterpartText(finding, logs),
                   .leads = log.id == CrossCheckStore::currentLogID()};
    if (finding.index < log.document.records().size()) {
        const tallyrig::ADIFRecord record = log.document.records()[finding.index];
        row.time = shownTime(record.valueOrEmpty("TIME_ON"));
        row.band = std::string(cutToShow(record.valueOrEmpty("BAND")));
    }
    return row;
}

}  // namespace

FindingsCard::FindingsCard(CrossCheckStore& crossStore, std::size_t mostFindings, QWidget* parent)
    : Card(QStringLiteral("Befunde"), parent),
      store(crossStore),
      findingLimit(mostFindings),
      filterPicker(new CalmComboBox(this)),
      countLine(noteLabel(QString(), this)),
      nothing(new QLabel(QStringLiteral("Keine Auffälligkeiten – alle prüfbaren QSOs bestätigt."), this)),
      list(new FindingList(QStringLiteral("Zum QSO springen (öffnet die Check-Ansicht)"),
                           FindingList::Height::ofPane, this)),
      further(noteLabel(QString(), this)) {
    auto* label = new QLabel(QStringLiteral("Zeigen"), this);
    nameBy(*label, *filterPicker);
    explain(*filterPicker,
            QStringLiteral("Welche QSOs des gewählten Logs unten stehen. „Auffälligkeiten“ sind alle, die "
                           "nicht bestätigt sind, und die bestätigten mit einem Hinweis; darunter stehen die "
                           "Befunde, die in diesem Log vorkommen."));
    label->setWhatsThis(filterPicker->whatsThis());
    filterPicker->setMinimumWidth(
        filterPicker->fontMetrics().horizontalAdvance(QStringLiteral("Band/Modus abweichend (8.888)")) + 50);
    list->setAccessibleName(QStringLiteral("Befunde"));
    countLine->setWordWrap(false);
    putBesideHeading(countLine);
    putBesideHeading(label);
    putBesideHeading(filterPicker);
    content().addWidget(nothing, 1, Qt::AlignTop);
    content().addWidget(list, 1);
    content().addWidget(further);
    connect(filterPicker, &QComboBox::activated, this, [this](int index) {
        const int chosen = filterPicker->itemData(index).toInt();
        store.setFindingFilter(chosen == problemsItem ? FindingFilter::problems()
                               : chosen == allItem
                                   ? FindingFilter::all()
                                   : FindingFilter::of(static_cast<CrossCheckStatus>(chosen)));
    });
    connect(list, &FindingList::pressed, this,
            [this](int row) { emit qsoWanted(listed[static_cast<std::size_t>(row)]); });
}

void FindingsCard::show(const CrossCheckEvaluation& evaluation, std::optional<tallyrig::UUID> log) {
    const std::vector<CrossCheckLog>& logs = evaluation.input.logs;
    const auto shownLog = log ? std::ranges::find(logs, *log, &CrossCheckLog::id) : logs.end();
    if (shownLog == logs.end()) {
        setVisible(false);
        return;
    }
    setVisible(true);
    setHeading(QStringLiteral("Befunde ") + shown(shownLog->name));
    const auto findings = evaluation.report.findings(shownLog->id);

    std::array<std::size_t, tallyrig::crossCheckStatuses.size()> counts{};
    std::size_t passing = 0;
    std::vector<FindingRow> rows;
    listed.clear();
    for (const CrossCheckFinding& finding : findings) {
        ++counts[static_cast<std::size_t>(finding.status)];
        if (!store.findingFilter().shows(finding)) {
            continue;
        }
        ++passing;
        if (rows.size() < findingLimit) {
            rows.push_back(rowOf(finding, *shownLog, logs));
            listed.push_back(finding.id);
        }
    }

    filterPicker->clear();
    filterPicker->addItem(QStringLiteral("Auffälligkeiten"), problemsItem);
    filterPicker->addItem(QStringLiteral("Alle QSOs"), allItem);
    for (const CrossCheckStatus status : tallyrig::crossCheckStatuses) {
        const std::size_t count = counts[static_cast<std::size_t>(status)];
        if (count > 0 || store.findingFilter().status() == status) {
            filterPicker->addItem(
                toQString(label(status)) + QStringLiteral(" (") + number(count) + QLatin1Char(')'),
                static_cast<int>(status));
        }
    }
    const int chosen = store.findingFilter().status() ? static_cast<int>(*store.findingFilter().status())
                       : store.findingFilter() == FindingFilter::all() ? allItem
                                                                       : problemsItem;
    filterPicker->setCurrentIndex(filterPicker->findData(chosen));

    countLine->setText(number(passing) + QStringLiteral(" von ") + number(findings.size()));
    nothing->setVisible(passing == 0);
    list->setVisible(passing > 0);
    further->setText(number(passing - rows.size()) + QStringLiteral(" weitere"));
    further->setVisible(passing > rows.size());
    list->setFindings(std::move(rows));
}

}  // namespace quillon
