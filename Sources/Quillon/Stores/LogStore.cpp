#include "Quillon/Stores/LogStore.h"

#include "Quillon/Stores/LogStoreDisplay.h"
#include "Quillon/Stores/LogStoreOperation.h"

#include <array>
#include <utility>

namespace quillon {

namespace {

/// Whether a person could tell the two apart: what was copied from one another cannot differ, and of what was
/// not, two logs without records may still be the same.
bool areSame(const tallyrig::ADIFDocument& left, const tallyrig::ADIFDocument& right) {
    return left.isSameAs(right) || (left.records().empty() && right.records().empty() && left == right);
}

}  // namespace

LogStore::Operation::Operation(LogStore& logStore) : store(logStore) {
    if (store.runningOperations++ == 0) {
        before = store.state;
    }
}

LogStore::Operation::~Operation() {
    if (--store.runningOperations == 0) {
        store.announceChangesSince(*before);
    }
}

LogStore::LogStore(Settings& userSettings, Panels& userPanels, const TextMeasurer& textMeasurer,
                   QObject* parent)
    : QObject(parent),
      settings(userSettings),
      panels(userPanels),
      measurer(textMeasurer),
      display(std::make_unique<Display>()) {
    state.checkResults = std::make_shared<const CheckResults>();
    state.columns = columnsFor(state.document);
}

LogStore::~LogStore() = default;

void LogStore::announceChangesSince(const Observed& before) {
    const Observed& now = state;
    const bool isOtherLog = !areSame(before.document, now.document);
    const bool isOtherSearch = before.searchText != now.searchText;
    const bool isOtherSort = before.sortColumn != now.sortColumn || before.sortAscending != now.sortAscending;
    const auto titleOf = [](const Observed& moment) {
        return windowTitleFor(moment.fileURL, moment.isDirty);
    };

    struct Notice {
        bool isDue;
        void (LogStore::*signal)();
    };
    // All is decided before the first is sent: who is told may change the store again.
    const std::array notices = {
        Notice{isOtherLog, &LogStore::documentChanged},
        Notice{before.fileURL != now.fileURL, &LogStore::fileURLChanged},
        Notice{before.isDirty != now.isDirty, &LogStore::isDirtyChanged},
        Notice{titleOf(before) != titleOf(now), &LogStore::windowTitleChanged},
        Notice{before.canUndo != now.canUndo || before.canRedo != now.canRedo, &LogStore::historyChanged},
        Notice{before.columns != now.columns, &LogStore::columnsChanged},
        Notice{before.columnWidths != now.columnWidths, &LogStore::columnWidthsChanged},
        Notice{isOtherSort, &LogStore::sortChanged},
        Notice{isOtherSearch, &LogStore::searchTextChanged},
        Notice{isOtherLog || isOtherSearch || isOtherSort, &LogStore::displayedRecordsChanged},
        Notice{before.selectionRevision != now.selectionRevision ||
                   before.selectionAnchor != now.selectionAnchor,
               &LogStore::selectionChanged},
        Notice{before.mode != now.mode, &LogStore::modeChanged},
        Notice{before.checkResults != now.checkResults, &LogStore::checkResultsChanged},
        Notice{before.showCheckResults != now.showCheckResults, &LogStore::showCheckResultsChanged},
        Notice{before.showCabrilloExport != now.showCabrilloExport, &LogStore::showCabrilloExportChanged},
        Notice{before.showEDIExport != now.showEDIExport, &LogStore::showEDIExportChanged},
        Notice{before.bulkEditColumn != now.bulkEditColumn, &LogStore::bulkEditColumnChanged},
        Notice{before.errorMessage != now.errorMessage, &LogStore::errorMessageChanged},
    };
    for (const Notice& notice : notices) {
        if (notice.isDue) {
            emit(this->*notice.signal)();
        }
    }
}

void LogStore::setErrorMessage(std::optional<QString> message) {
    const Operation operation(*this);
    state.errorMessage = std::move(message);
}

void LogStore::setMode(AppMode mode) {
    const Operation operation(*this);
    state.mode = mode;
}

void LogStore::setShowCheckResults(bool show) {
    const Operation operation(*this);
    state.showCheckResults = show;
}

void LogStore::setBulkEditColumn(std::optional<std::string> column) {
    const Operation operation(*this);
    state.bulkEditColumn = std::move(column);
}

}  // namespace quillon
