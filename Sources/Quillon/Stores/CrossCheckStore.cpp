// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/CrossCheckStore.h"

#include "Quillon/Catalogue/LogWriters.h"
#include "Quillon/Platform/FileNames.h"
#include "Quillon/Platform/Files/LogFiles.h"
#include "Quillon/Platform/NaturalOrder.h"
#include "Tallyrig/CrossCheck/LogWork.h"
#include "Tallyrig/Log/ProgramName.h"
#include "Tallyrig/Text/Text.h"
#include "Tallyrig/Text/VisibleText.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <numeric>
#include <unordered_set>
#include <utility>
#include <variant>

namespace quillon {

namespace {

constexpr QLatin1String crossCheckArgument("--crosscheck");

/// For one line on a screen.
QString shownName(const std::string& name) {
    return QString::fromStdString(tallyrig::text::visibleText(name));
}

std::optional<std::string> systemPath(const std::optional<QString>& path) {
    return path ? std::optional(path->toStdString()) : std::nullopt;
}

/// The files by their owners in natural order; those of one owner stay in theirs.
CrossCheckFiles sortedByOwner(CrossCheckFiles files) {
    std::vector<std::string> owners;
    std::ranges::transform(files, std::back_inserter(owners), &CrossCheckFile::effectiveOwner);
    const auto ranks = NaturalOrder::ranks({owners.begin(), owners.end()});
    std::vector<std::size_t> order(files.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::stable_sort(order, {}, [&](std::size_t index) { return ranks[index]; });
    CrossCheckFiles sorted;
    sorted.reserve(files.size());
    for (const std::size_t index : order) {
        sorted.push_back(std::move(files[index]));
    }
    return sorted;
}

QString skippedMessage(std::size_t added, const std::vector<std::string>& skipped) {
    constexpr std::size_t mostNamed = 5;
    QStringList names;
    for (std::size_t index = 0; index < std::min(skipped.size(), mostNamed); ++index) {
        names.append(shownName(skipped[index]));
    }
    return QStringLiteral("%1 Log(s) geladen, %2 übersprungen (keine QSOs): ")
               .arg(added)
               .arg(skipped.size()) +
           names.join(QStringLiteral(", ")) + (skipped.size() > mostNamed ? QStringLiteral(" …") : QString());
}

}  // namespace

std::span<const CrossCheckStore::Changes::Property> CrossCheckStore::observedProperties() {
    static const Changes::Property properties[] = {
        {Changes::differ<&Observed::entries>, &CrossCheckStore::entriesChanged},
        {Changes::differ<&Observed::includeCurrentLog>, &CrossCheckStore::includeCurrentLogChanged},
        {Changes::differ<&Observed::currentOwnerOverride>, &CrossCheckStore::currentOwnerOverrideChanged},
        {Changes::differ<&Observed::toleranceMinutes>, &CrossCheckStore::toleranceMinutesChanged},
        {Changes::differ<&Observed::compareMode>, &CrossCheckStore::compareModeChanged},
        {Changes::differ<&Observed::checkExchange>, &CrossCheckStore::checkExchangeChanged},
        {Changes::differ<&Observed::checkRST>, &CrossCheckStore::checkRSTChanged},
        {Changes::differ<&Observed::selectedLogID>, &CrossCheckStore::selectedLogIDChanged},
        {Changes::differ<&Observed::findingFilter>, &CrossCheckStore::findingFilterChanged},
        {Changes::differ<&Observed::loadMessage>, &CrossCheckStore::loadMessageChanged},
        {Changes::differ<&Observed::scoringEnabled>, &CrossCheckStore::scoringEnabledChanged},
        {Changes::differ<&Observed::removeBustedExchange>, &CrossCheckStore::removeBustedExchangeChanged},
        {Changes::differ<&Observed::nilPenaltyFactor>, &CrossCheckStore::nilPenaltyFactorChanged},
        {Changes::differ<&Observed::bustedPenaltyFactor>, &CrossCheckStore::bustedPenaltyFactorChanged},
        {Changes::differ<&Observed::evaluator>, &CrossCheckStore::evaluatorChanged},
        {Changes::differ<&Observed::evaluation>, &CrossCheckStore::evaluationChanged},
        {Changes::differ<&Observed::exportMessage, &Observed::hasExportFailed>,
         &CrossCheckStore::exportMessageChanged},
    };
    return properties;
}

std::optional<QString> CrossCheckStore::commandLineFolder(const QStringList& arguments) {
    const QString folder = arguments.value(arguments.indexOf(crossCheckArgument) + 1);
    return arguments.contains(crossCheckArgument) && !folder.isEmpty() ? std::optional(folder) : std::nullopt;
}

tallyrig::UUID CrossCheckStore::currentLogID() {
    static const tallyrig::UUID id = tallyrig::UUID::fresh();
    return id;
}

void CrossCheckStore::add(const QStringList& paths, const std::optional<QString>& currentURL) {
    tallyrig::LogWork work;
    take(readLogs(logsToAdd(paths, currentURL), work).value_or(AddedLogs()));
}

LogsToAdd CrossCheckStore::logsToAdd(const QStringList& paths,
                                     const std::optional<QString>& currentURL) const {
    LogsToAdd wanted;
    for (const QString& path : paths) {
        wanted.paths.push_back(absolutePath(path).toStdString());
    }
    wanted.present = state.entries;
    wanted.currentPath = state.includeCurrentLog ? systemPath(currentURL) : std::nullopt;
    return wanted;
}

void CrossCheckStore::take(AddedLogs added) {
    const Changes::Operation operation(changes);
    // While these were read, others may have been added.
    const auto present = locationKeys(*state.entries);
    std::erase_if(added.files,
                  [&](const CrossCheckFile& file) { return present.contains(locationKey(file.path)); });
    const std::size_t count = added.files.size();
    if (count > 0) {
        CrossCheckFiles all = *state.entries;
        std::ranges::move(added.files, std::back_inserter(all));
        state.entries = std::make_shared<const CrossCheckFiles>(sortedByOwner(std::move(all)));
    }
    QStringList lines;
    if (added.currentName) {
        lines.append(QStringLiteral("%1 ist bereits das aktuelle Log.").arg(shownName(*added.currentName)));
    }
    if (!added.skipped.empty()) {
        lines.append(skippedMessage(count, added.skipped));
    }
    state.loadMessage = lines.isEmpty() ? std::nullopt : std::optional(lines.join(QLatin1Char('\n')));
}

void CrossCheckStore::addLogsWithPanel(const std::optional<QString>& currentURL) {
    if (const auto wanted = logsToAddWithPanel(currentURL)) {
        tallyrig::LogWork work;
        take(readLogs(*wanted, work).value_or(AddedLogs()));
    }
}

std::optional<LogsToAdd> CrossCheckStore::logsToAddWithPanel(const std::optional<QString>& currentURL) const {
    const QStringList paths = panels.filesAndFoldersToOpen(
        PanelUse::crossCheckLogs,
        QStringLiteral("Contest-Logs (ADI, ADX, Cabrillo, EDI) oder einen Ordner wählen"));
    return paths.isEmpty() ? std::nullopt : std::optional(logsToAdd(paths, currentURL));
}

template <typename IsRemoved>
void CrossCheckStore::removeEntries(const IsRemoved& isRemoved) {
    const Changes::Operation operation(changes);
    CrossCheckFiles left;
    for (const Entry& entry : *state.entries) {
        if (!isRemoved(entry)) {
            left.push_back(entry);
        } else if (state.selectedLogID == entry.id) {
            state.selectedLogID.reset();
        }
    }
    if (left.size() < state.entries->size()) {
        state.entries = std::make_shared<const CrossCheckFiles>(std::move(left));
    }
}

void CrossCheckStore::remove(tallyrig::UUID id) {
    removeEntries([id](const Entry& entry) { return entry.id == id; });
}

void CrossCheckStore::removeAll() {
    removeEntries([](const Entry&) { return true; });
}

void CrossCheckStore::setOwnerOverride(tallyrig::UUID id, std::string_view owner) {
    const Changes::Operation operation(changes);
    const auto found = std::ranges::find(*state.entries, id, &Entry::id);
    if (found == state.entries->end() || found->ownerOverride == owner) {
        return;
    }
    CrossCheckFiles changed = *state.entries;
    changed[static_cast<std::size_t>(found - state.entries->begin())].ownerOverride = owner;
    state.entries = std::make_shared<const CrossCheckFiles>(std::move(changed));
}

template <typename Value>
void CrossCheckStore::set(Value Observed::*property, Value value) {
    const Changes::Operation operation(changes);
    state.*property = std::move(value);
}

void CrossCheckStore::setIncludeCurrentLog(bool include) {
    set(&Observed::includeCurrentLog, include);
}

void CrossCheckStore::setCurrentOwnerOverride(std::string owner) {
    set(&Observed::currentOwnerOverride, std::move(owner));
}

void CrossCheckStore::setToleranceMinutes(int minutes) {
    set(&Observed::toleranceMinutes, minutes);
}

void CrossCheckStore::setCompareMode(bool compare) {
    set(&Observed::compareMode, compare);
}

void CrossCheckStore::setCheckExchange(bool check) {
    set(&Observed::checkExchange, check);
}

void CrossCheckStore::setCheckRST(bool check) {
    set(&Observed::checkRST, check);
}

tallyrig::CrossCheckOptions CrossCheckStore::options() const {
    constexpr int leastExtendedTolerance = 30;
    return {.timeToleranceMinutes = state.toleranceMinutes,
            .extendedToleranceMinutes = std::max(state.toleranceMinutes, leastExtendedTolerance),
            .compareMode = state.compareMode,
            .checkExchange = state.checkExchange,
            .checkRST = state.checkRST,
            .maxCallDistance = 2};
}

void CrossCheckStore::setScoringEnabled(bool enabled) {
    set(&Observed::scoringEnabled, enabled);
}

void CrossCheckStore::setRemoveBustedExchange(bool remove) {
    set(&Observed::removeBustedExchange, remove);
}

void CrossCheckStore::setNilPenaltyFactor(int factor) {
    set(&Observed::nilPenaltyFactor, factor);
}

void CrossCheckStore::setBustedPenaltyFactor(int factor) {
    set(&Observed::bustedPenaltyFactor, factor);
}

tallyrig::CrossCheckPenalties CrossCheckStore::penalties() const {
    return {state.removeBustedExchange, state.nilPenaltyFactor, state.bustedPenaltyFactor};
}

std::vector<tallyrig::CrossCheckLog> CrossCheckStore::logs(const tallyrig::ADIFDocument& current,
                                                           const std::optional<QString>& currentURL) const {
    std::vector<tallyrig::CrossCheckLog> logs;
    const auto currentPath = systemPath(currentURL);
    const bool isCurrentIncluded = state.includeCurrentLog && !current.records().empty();
    if (isCurrentIncluded) {
        const std::string& owner = state.currentOwnerOverride;
        logs.emplace_back(currentLogID(), currentPath ? fileName(*currentPath) : "Aktuelles Log", current,
                          owner.empty() ? std::nullopt : std::optional<std::string_view>(owner));
    }
    const std::string currentKey =
        isCurrentIncluded && currentPath ? locationKey(*currentPath) : std::string();
    for (const Entry& entry : *state.entries) {
        if (currentKey.empty() || locationKey(entry.path) != currentKey) {
            logs.emplace_back(entry.id, entry.name(), entry.document, entry.effectiveOwner());
        }
    }
    return logs;
}

CrossCheckInput CrossCheckStore::input(const tallyrig::ADIFDocument& current,
                                       const std::optional<QString>& currentURL,
                                       ContestChoice contest) const {
    return {logs(current, currentURL), options(), state.scoringEnabled, penalties(), std::move(contest)};
}

std::shared_ptr<const CrossCheckStore::Evaluation> CrossCheckStore::evaluate(
    const tallyrig::ADIFDocument& current, const std::optional<QString>& currentURL,
    ContestChoice contest) const {
    EvaluationWork work;
    return std::make_shared<const Evaluation>(
        evaluated(input(current, currentURL, std::move(contest)), work).value());
}

void CrossCheckStore::take(std::shared_ptr<const Evaluation> evaluation) {
    set(&Observed::evaluation, std::move(evaluation));
}

void CrossCheckStore::setSelectedLogID(std::optional<tallyrig::UUID> id) {
    set(&Observed::selectedLogID, id);
}

void CrossCheckStore::setFindingFilter(FindingFilter filter) {
    set(&Observed::findingFilter, filter);
}

void CrossCheckStore::setEvaluator(std::string evaluator) {
    set(&Observed::evaluator, std::move(evaluator));
}

WrittenReports CrossCheckStore::exportReports(std::shared_ptr<const Evaluation> evaluation,
                                              const QString& folder, const QDate& date) const {
    tallyrig::LogWork work;
    return writeReports(reportsToWrite(std::move(evaluation), folder, date), work).value();
}

ReportsToWrite CrossCheckStore::reportsToWrite(std::shared_ptr<const Evaluation> evaluation,
                                               const QString& folder, const QDate& date) const {
    tallyrig::CrossCheckExportInfo info = {
        .contestName = evaluation->contestName,
        .evaluator = std::string(tallyrig::text::trimmedOfBlanks(state.evaluator)),
        .toleranceMinutes = evaluation->input.options.timeToleranceMinutes,
        .generator = std::string(tallyrig::programName) + ' ' + std::string(programVersion()),
        .date = date.toString(Qt::ISODate).toStdString()};
    return {std::move(evaluation), std::move(info), absolutePath(folder).toStdString()};
}

void CrossCheckStore::exportReportsWithPanel(std::shared_ptr<const Evaluation> evaluation,
                                             const QDate& date) {
    if (const auto wanted = reportsToWriteWithPanel(std::move(evaluation), date)) {
        tallyrig::LogWork work;
        take(writeReports(*wanted, work).value());
    }
}

std::optional<ReportsToWrite> CrossCheckStore::reportsToWriteWithPanel(
    std::shared_ptr<const Evaluation> evaluation, const QDate& date) const {
    const auto folder = panels.folderToWriteTo(
        PanelUse::reports,
        QStringLiteral("Ordner für die Prüfberichte wählen (es wird ein Unterordner angelegt)"),
        QStringLiteral("Exportieren"));
    return folder ? std::optional(reportsToWrite(std::move(evaluation), *folder, date)) : std::nullopt;
}

void CrossCheckStore::take(const WrittenReports& written) {
    const Changes::Operation operation(changes);
    const auto* const folder = std::get_if<ReportFolder>(&written);
    state.hasExportFailed = folder == nullptr;
    if (folder == nullptr) {
        state.exportMessage = QStringLiteral("Export fehlgeschlagen: ") +
                              QString::fromStdString(std::get<FileError>(written).message);
        return;
    }
    state.exportMessage = QStringLiteral("%1 Dateien in «%2» geschrieben.")
                              .arg(folder->files)
                              .arg(shownName(fileName(folder->path)));
    files.show(QString::fromStdString(folder->path));
}

void CrossCheckStore::clearExportMessage() {
    const Changes::Operation operation(changes);
    state.exportMessage.reset();
    state.hasExportFailed = false;
}

}  // namespace quillon
