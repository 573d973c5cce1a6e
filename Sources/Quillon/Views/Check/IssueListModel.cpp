#include "Quillon/Views/Check/IssueListModel.h"

#include "Quillon/Catalogue/ADIFFieldCatalog.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/Icons.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/Strings.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace quillon {

namespace {

QString lineText(const tallyrig::ValidationIssue& issue) {
    return QStringLiteral("Zeile ") + QString::number(issue.recordIndex + 1);
}

/// A message can hold a whole value, and nobody reads one of a megabyte.
QString messageText(const tallyrig::ValidationIssue& issue) {
    constexpr std::size_t longestShown = 4000;
    const std::string message = ADIFFieldCatalog::germanMessage(issue);
    const std::string_view shown = cutToShow(message, longestShown);
    return toQString(shown) + (shown.size() < message.size() ? QStringLiteral("…") : QString());
}

QString severityText(const tallyrig::ValidationIssue& issue) {
    return issue.severity() == tallyrig::ValidationSeverity::error ? QStringLiteral("Fehler")
                                                                   : QStringLiteral("Warnung");
}

}  // namespace

IssueListModel::IssueListModel(const LogStore& logStore, QObject* parent)
    : QAbstractListModel(parent), store(logStore), count(static_cast<int>(store.validationIssues().size())) {
    connect(&store, &LogStore::checkResultsChanged, this, &IssueListModel::follow);
}

int IssueListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count;
}

QVariant IssueListModel::data(const QModelIndex& index, int role) const {
    const auto& issues = store.validationIssues();
    if (!index.isValid() || static_cast<std::size_t>(index.row()) >= issues.size()) {
        return {};
    }
    const tallyrig::ValidationIssue& issue = issues[static_cast<std::size_t>(index.row())];
    switch (role) {
        case Qt::DecorationRole:
            return severityIcon(issue.severity());
        case Qt::DisplayRole:
            return QString(lineText(issue) + QStringLiteral(": ") + messageText(issue));
        case Qt::AccessibleTextRole:
            return QString(severityText(issue) + QStringLiteral(", ") + lineText(issue) +
                           QStringLiteral(": ") + messageText(issue));
        case Qt::ToolTipRole:
            return plainToolTip(messageText(issue));
        case lineRole:
            return lineText(issue);
        case messageRole:
            return messageText(issue);
        case recordIndexRole:
            return QVariant::fromValue(static_cast<qulonglong>(issue.recordIndex));
        default:
            return {};
    }
}

QString IssueListModel::longestLine() const {
    // The findings stand in the order of the records, and a later record has no shorter number.
    return store.validationIssues().empty() ? QString() : lineText(store.validationIssues().back());
}

void IssueListModel::follow() {
    beginResetModel();
    count = static_cast<int>(store.validationIssues().size());
    endResetModel();
}

}  // namespace quillon
