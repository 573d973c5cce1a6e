// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/LogStore.h"

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

std::span<const LogStore::Changes::Property> LogStore::observedProperties() {
    static constexpr auto isOtherLog = [](const Observed& before, const Observed& now) {
        return !areSame(before.document, now.document);
    };
    static const std::array properties = {
        Changes::Property{isOtherLog, &LogStore::documentChanged},
        Changes::Property{Changes::differ<&Observed::fileURL>, &LogStore::fileURLChanged},
        Changes::Property{Changes::differ<&Observed::reading>, &LogStore::readingReportChanged},
        Changes::Property{Changes::differ<&Observed::isDirty>, &LogStore::isDirtyChanged},
        Changes::Property{[](const Observed& before, const Observed& now) {
                              return !areSame(before.savedDocument, now.savedDocument);
                          },
                          &LogStore::savedDocumentChanged},
        Changes::Property{[](const Observed& before, const Observed& now) {
                              return before.windowTitle() != now.windowTitle();
                          },
                          &LogStore::windowTitleChanged},
        Changes::Property{Changes::differ<&Observed::canUndo, &Observed::canRedo>, &LogStore::historyChanged},
        Changes::Property{[](const Observed& before, const Observed& now) {
                              return before.columns.names() != now.columns.names();
                          },
                          &LogStore::columnsChanged},
        Changes::Property{[](const Observed& before, const Observed& now) {
                              return before.columns.widths() != now.columns.widths();
                          },
                          &LogStore::columnWidthsChanged},
        Changes::Property{[](const Observed& before, const Observed& now) {
                              return before.order.sortColumn != now.order.sortColumn ||
                                     before.order.sortAscending != now.order.sortAscending;
                          },
                          &LogStore::sortChanged},
        Changes::Property{[](const Observed& before, const Observed& now) {
                              return before.order.searchText != now.order.searchText;
                          },
                          &LogStore::searchTextChanged},
        Changes::Property{[](const Observed& before, const Observed& now) {
                              return isOtherLog(before, now) || before.order != now.order;
                          },
                          &LogStore::displayedRecordsChanged},
        Changes::Property{Changes::differ<&Observed::selectionRevision>, &LogStore::selectionChanged},
        Changes::Property{Changes::differ<&Observed::mode>, &LogStore::modeChanged},
        Changes::Property{Changes::differ<&Observed::checkResults>, &LogStore::checkResultsChanged},
        Changes::Property{Changes::differ<&Observed::showCheckResults>, &LogStore::showCheckResultsChanged},
        Changes::Property{Changes::differ<&Observed::showCabrilloExport>,
                          &LogStore::showCabrilloExportChanged},
        Changes::Property{Changes::differ<&Observed::showEDIExport>, &LogStore::showEDIExportChanged},
        Changes::Property{Changes::differ<&Observed::bulkEditColumn>, &LogStore::bulkEditColumnChanged},
        Changes::Property{Changes::differ<&Observed::outdoorProgram>, &LogStore::outdoorProgramChanged},
        Changes::Property{Changes::differ<&Observed::sotaRole>, &LogStore::sotaRoleChanged},
        Changes::Property{Changes::differ<&Observed::errorMessage>, &LogStore::errorMessageChanged},
    };
    return properties;
}

LogStore::LogStore(Settings& userSettings, Panels& userPanels, const TextMeasurer& textMeasurer,
                   FileManager& fileManager, QObject* parent)
    : QObject(parent),
      settings(userSettings),
      panels(userPanels),
      measurer(textMeasurer),
      files(fileManager) {
    state.checkResults = std::make_shared<const CheckResults>();
    state.columns.setNames(ColumnLayout::namesFor(state.document));
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
