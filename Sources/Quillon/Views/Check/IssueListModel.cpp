// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Check/IssueListModel.h"

#include "Quillon/Catalogue/ADIFFieldCatalog.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/Icons.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Tallyrig/Text/VisibleText.h"

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

namespace quillon {

namespace {

using tallyrig::ValidationIssue;
using tallyrig::ValidationSeverity;

QString lineText(const ValidationIssue& issue) {
    return QStringLiteral("Zeile ") + QString::number(issue.recordIndex + 1);
}

/// The German message. Of a large group of duplicates it names the first: each of a hundred thousand equal
/// QSOs would name all the others.
std::string boundedMessage(const ValidationIssue& issue) {
    constexpr std::size_t mostNamed = 200;
    const auto* duplicate = std::get_if<tallyrig::finding::Duplicate>(&issue.kind());
    if (duplicate == nullptr || duplicate->otherRecordNumbers.size() <= mostNamed) {
        return ADIFFieldCatalog::germanMessage(issue);
    }
    auto first = std::make_shared<std::vector<std::size_t>>();
    for (std::size_t index = 0; index < mostNamed; ++index) {
        first->push_back(duplicate->otherRecordNumbers[index]);
    }
    const tallyrig::OtherRecordNumbers named(std::move(first), mostNamed);
    const tallyrig::finding::Duplicate shortened{duplicate->keyFields, named};
    return ADIFFieldCatalog::germanMessage(ValidationIssue(issue.recordIndex, shortened)) + ", …";
}

/// A message can hold a whole value, and nobody reads one of a megabyte.
QString messageText(const ValidationIssue& issue) {
    constexpr std::size_t longestShown = 4000;
    const std::string message = boundedMessage(issue);
    const std::string_view shown = cutToShow(message, longestShown);
    return toQString(tallyrig::text::visibleText(shown)) +
           (shown.size() < message.size() ? QStringLiteral("…") : QString());
}

QString rowText(const ValidationIssue& issue) {
    return lineText(issue) + QStringLiteral(": ") + messageText(issue);
}

QString severityText(const ValidationIssue& issue) {
    return issue.severity() == ValidationSeverity::error ? QStringLiteral("Fehler")
                                                         : QStringLiteral("Warnung");
}

}  // namespace

IssueListModel::IssueListModel(const LogStore& logStore, QObject* parent)
    : QAbstractListModel(parent), store(logStore), count(store.validationIssues().size()) {
    nextBatch.setSingleShot(true);
    connect(&nextBatch, &QTimer::timeout, this, &IssueListModel::filterNextBatch);
    connect(&store, &LogStore::checkResultsChanged, this, &IssueListModel::restart);
}

int IssueListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(filter.passesAll() ? count : matches.size());
}

QVariant IssueListModel::data(const QModelIndex& index, int role) const {
    const auto& issues = store.validationIssues();
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    const auto row = static_cast<std::size_t>(index.row());
    const std::size_t position = filter.passesAll() ? row : matches[row];
    if (position >= issues.size()) {
        return {};
    }
    const ValidationIssue& issue = issues[position];
    switch (role) {
        case Qt::DecorationRole:
            return severityIcon(issue.severity());
        case Qt::DisplayRole:
            return rowText(issue);
        case Qt::AccessibleTextRole:
            return QString(severityText(issue) + QStringLiteral(", ") + rowText(issue));
        case Qt::ToolTipRole:
            return plainToolTip(messageText(issue));
        case FindingDelegate::placeRole:
            return lineText(issue);
        case FindingDelegate::messageRole:
            return messageText(issue);
        case issueIndexRole:
            return QVariant::fromValue(static_cast<qulonglong>(position));
        default:
            return {};
    }
}

void IssueListModel::setFilter(const IssueFilter& wanted) {
    if (filter == wanted) {
        return;
    }
    beginResetModel();
    filter = wanted;
    matches.clear();
    looked = 0;
    endResetModel();
    filterNextBatch();
}

std::optional<int> IssueListModel::rowOf(std::size_t issueIndex) const {
    if (filter.passesAll()) {
        return issueIndex < count ? std::optional(static_cast<int>(issueIndex)) : std::nullopt;
    }
    const auto found = std::ranges::lower_bound(matches, issueIndex);
    return found != matches.end() && *found == issueIndex
               ? std::optional(static_cast<int>(found - matches.begin()))
               : std::nullopt;
}

QString IssueListModel::longestLine() const {
    // The findings stand in the order of the records, and a later record has no shorter number.
    return store.validationIssues().empty() ? QString() : lineText(store.validationIssues().back());
}

void IssueListModel::restart() {
    beginResetModel();
    count = store.validationIssues().size();
    matches.clear();
    looked = 0;
    endResetModel();
    filterNextBatch();
}

void IssueListModel::filterNextBatch() {
    constexpr std::size_t batch = 10'000;
    nextBatch.stop();
    if (!filter.passesAll()) {
        const auto& issues = store.validationIssues();
        std::vector<std::uint32_t> found;
        const std::size_t end = std::min(looked + batch, count);
        for (; looked < end; ++looked) {
            if (passes(issues[looked])) {
                found.push_back(static_cast<std::uint32_t>(looked));
            }
        }
        if (!found.empty()) {
            beginInsertRows({}, rowCount(), rowCount() + static_cast<int>(found.size()) - 1);
            matches.insert(matches.end(), found.begin(), found.end());
            endInsertRows();
        }
        if (looked < count) {
            nextBatch.start(0);
            return;
        }
    }
    emit filtered();
}

bool IssueListModel::passes(const ValidationIssue& issue) const {
    const bool isWanted = issue.severity() == ValidationSeverity::error ? filter.errors : filter.warnings;
    return isWanted && (filter.text.isEmpty() || rowText(issue).contains(filter.text, Qt::CaseInsensitive));
}

}  // namespace quillon
