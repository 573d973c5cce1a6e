// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/FileManager.h"
#include "Quillon/Platform/Panels.h"
#include "Quillon/Stores/CrossCheckEvaluation.h"
#include "Quillon/Stores/CrossCheckFiles.h"
#include "Quillon/Stores/FindingFilter.h"
#include "Quillon/Stores/StoreState.h"
#include "Tallyrig/Contest/ContestChecker.h"
#include "Tallyrig/CrossCheck/CrossCheckLog.h"
#include "Tallyrig/CrossCheck/CrossCheckOptions.h"
#include "Tallyrig/Log/ADIFDocument.h"
#include "Tallyrig/Log/UUID.h"

#include <QDate>
#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// What a cross-check is made of: the logs of other stations with their owners, whether the open log takes
/// part, how logs are compared and scored, and what of the result is on screen. It lives as long as the
/// program runs; nothing of it is kept on disk.
///
/// What takes long comes in two ways. One call does it all (`add`, `evaluate`, `exportReports`); or a value
/// is taken from the store (`logsToAdd`, `input`, `reportsToWrite`), a function makes the result of it on
/// another thread (`readLogs`, `evaluated`, `writeReports`), and the store takes that over (`take`). Both
/// come to the same.
///
/// Each property has one change signal, sent when the change is whole and only if the value is another one.
/// Texts are UTF-8.
class CrossCheckStore : public QObject {
    Q_OBJECT

  public:
    using Entry = CrossCheckFile;
    using Evaluation = CrossCheckEvaluation;

    /// Both outlive the store.
    CrossCheckStore(Panels& userPanels, FileManager& desktopFiles, QObject* parent = nullptr)
        : QObject(parent), panels(userPanels), files(desktopFiles) {}

    /// The folder that the program's `arguments` name behind "--crosscheck"; absent if they name none.
    static std::optional<QString> commandLineFolder(const QStringList& arguments);
    /// What the open log is called in all evaluations of this process.
    static tallyrig::UUID currentLogID();

    // The logs of the other stations.
    /// Good until they change. Sorted by owner when logs are added; an owner that is typed moves nothing.
    const CrossCheckFiles& entries() const { return *state.entries; }
    /// Adds files, and of folders the logs that lie in them. Those that are there already and, while it takes
    /// part, the open log `currentURL` are passed over; `loadMessage` tells of what gave no log.
    void add(const QStringList& paths, const std::optional<QString>& currentURL);
    LogsToAdd logsToAdd(const QStringList& paths, const std::optional<QString>& currentURL) const;
    void take(AddedLogs added);
    /// Asks for the files and folders; nothing happens if the user cancels.
    void addLogsWithPanel(const std::optional<QString>& currentURL);
    std::optional<LogsToAdd> logsToAddWithPanel(const std::optional<QString>& currentURL) const;
    /// `selectedLogID` does not stay on an entry that is removed. Nothing happens if there is no such one.
    void remove(tallyrig::UUID id);
    void removeAll();
    /// Does nothing if there is no such entry.
    void setOwnerOverride(tallyrig::UUID id, std::string_view owner);
    /// What adding has to tell, a line or two; absent if there is nothing.
    const std::optional<QString>& loadMessage() const { return state.loadMessage; }

    // The open log.
    bool includeCurrentLog() const { return state.includeCurrentLog; }
    void setIncludeCurrentLog(bool include);
    /// The call of its owner as typed; empty for the one that it names itself.
    const std::string& currentOwnerOverride() const { return state.currentOwnerOverride; }
    void setCurrentOwnerOverride(std::string owner);

    // How logs are compared and scored. Figures are taken as they are.
    int toleranceMinutes() const { return state.toleranceMinutes; }
    void setToleranceMinutes(int minutes);
    bool compareMode() const { return state.compareMode; }
    void setCompareMode(bool compare);
    bool checkExchange() const { return state.checkExchange; }
    void setCheckExchange(bool check);
    bool checkRST() const { return state.checkRST; }
    void setCheckRST(bool check);
    tallyrig::CrossCheckOptions options() const;
    bool scoringEnabled() const { return state.scoringEnabled; }
    void setScoringEnabled(bool enabled);
    bool removeBustedExchange() const { return state.removeBustedExchange; }
    void setRemoveBustedExchange(bool remove);
    int nilPenaltyFactor() const { return state.nilPenaltyFactor; }
    void setNilPenaltyFactor(int factor);
    int bustedPenaltyFactor() const { return state.bustedPenaltyFactor; }
    void setBustedPenaltyFactor(int factor);
    tallyrig::CrossCheckPenalties penalties() const;

    // The result.
    /// The open log `current` first, if it takes part and has records, then the entries; `currentURL` is its
    /// path, under which no entry takes part beside it. Cost: a pass over the open log where its owner was
    /// not typed.
    std::vector<tallyrig::CrossCheckLog> logs(const tallyrig::ADIFDocument& current,
                                              const std::optional<QString>& currentURL) const;
    CrossCheckInput input(const tallyrig::ADIFDocument& current, const std::optional<QString>& currentURL,
                          ContestChoice contest) const;
    /// Checks and scores the logs as they are now; the store does not keep the result.
    std::shared_ptr<const Evaluation> evaluate(const tallyrig::ADIFDocument& current,
                                               const std::optional<QString>& currentURL,
                                               ContestChoice contest) const;
    /// The result that is on screen: the one taken over last, which may lag behind the logs and the options
    /// (`CrossCheckInput::isSameAs`). Null before the first.
    const std::shared_ptr<const Evaluation>& evaluation() const { return state.evaluation; }
    /// Cost: to free the one before takes most of a second for 5,000,000 QSOs, unless somebody else holds it
    /// and lets it go on another thread.
    void take(std::shared_ptr<const Evaluation> evaluation);
    /// The log whose findings are shown; it need not take part.
    const std::optional<tallyrig::UUID>& selectedLogID() const { return state.selectedLogID; }
    void setSelectedLogID(std::optional<tallyrig::UUID> id);
    FindingFilter findingFilter() const { return state.findingFilter; }
    void setFindingFilter(FindingFilter filter);

    // The reports.
    const std::string& evaluator() const { return state.evaluator; }
    void setEvaluator(std::string evaluator);
    /// Writes the reports of an evaluation into a new folder in `folder`. Changes nothing in the store.
    WrittenReports exportReports(std::shared_ptr<const Evaluation> evaluation, const QString& folder,
                                 const QDate& date) const;
    ReportsToWrite reportsToWrite(std::shared_ptr<const Evaluation> evaluation, const QString& folder,
                                  const QDate& date) const;
    /// Asks for the folder, writes and tells how it went; nothing happens if the user cancels.
    void exportReportsWithPanel(std::shared_ptr<const Evaluation> evaluation, const QDate& date);
    std::optional<ReportsToWrite> reportsToWriteWithPanel(std::shared_ptr<const Evaluation> evaluation,
                                                          const QDate& date) const;
    /// Tells how the export went, and shows the folder in the file manager.
    void take(const WrittenReports& written);
    /// How the last export went; absent before, and once the user has seen it.
    const std::optional<QString>& exportMessage() const { return state.exportMessage; }
    /// Whether `exportMessage` tells of a failure.
    bool hasExportFailed() const { return state.hasExportFailed; }
    void clearExportMessage();

  signals:
    /// Entries were added or removed, or an owner was typed.
    void entriesChanged();
    void includeCurrentLogChanged();
    void currentOwnerOverrideChanged();
    void toleranceMinutesChanged();
    void compareModeChanged();
    void checkExchangeChanged();
    void checkRSTChanged();
    void selectedLogIDChanged();
    void findingFilterChanged();
    void loadMessageChanged();
    void scoringEnabledChanged();
    void removeBustedExchangeChanged();
    void nilPenaltyFactorChanged();
    void bustedPenaltyFactorChanged();
    void evaluatorChanged();
    void evaluationChanged();
    /// `exportMessage` or `hasExportFailed` changed.
    void exportMessageChanged();

  private:
    struct Observed {
        std::shared_ptr<const CrossCheckFiles> entries = std::make_shared<const CrossCheckFiles>();
        bool includeCurrentLog = true;
        std::string currentOwnerOverride;
        int toleranceMinutes = 5;
        bool compareMode = true;
        bool checkExchange = true;
        bool checkRST = false;
        std::optional<tallyrig::UUID> selectedLogID;
        FindingFilter findingFilter = FindingFilter::problems();
        std::optional<QString> loadMessage;
        bool scoringEnabled = true;
        bool removeBustedExchange = true;
        int nilPenaltyFactor = 0;
        int bustedPenaltyFactor = 0;
        std::string evaluator;
        std::shared_ptr<const Evaluation> evaluation;
        std::optional<QString> exportMessage;
        bool hasExportFailed = false;
    };
    using Changes = StoreState<CrossCheckStore, Observed>;

    static std::span<const Changes::Property> observedProperties();

    template <typename Value>
    void set(Value Observed::*property, Value value);
    /// Removes the entries of which `isRemoved` is true.
    template <typename IsRemoved>
    void removeEntries(const IsRemoved& isRemoved);

    Panels& panels;
    FileManager& files;
    Observed state;
    Changes changes{*this, state, observedProperties()};
};

}  // namespace quillon
