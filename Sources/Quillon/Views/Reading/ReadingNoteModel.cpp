// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Reading/ReadingNoteModel.h"

#include "Quillon/Catalogue/ReadingWords.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/Icons.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/Strings.h"

namespace quillon {

namespace {

using tallyrig::ReadingNote;
using tallyrig::ReadingSeverity;

QIcon iconOf(ReadingSeverity severity) {
    switch (severity) {
        case ReadingSeverity::error:
            return severityIcon(tallyrig::ValidationSeverity::error);
        case ReadingSeverity::warning:
            return severityIcon(tallyrig::ValidationSeverity::warning);
        case ReadingSeverity::note:
            break;
    }
    return icon(QStringLiteral("help-about"));
}

QString placeText(const ReadingNote& note) {
    return QStringLiteral("Zeile ") + QString::number(note.line);
}

/// All of a note, with `separator` between its parts.
QString rowText(const ReadingNote& note, const QString& separator) {
    QStringList parts = {placeText(note), toQString(ReadingWords::label(note.severity())),
                         toQString(ReadingWords::message(note))};
    if (!note.excerpt.empty()) {
        parts.append(toQString(note.excerpt));
    }
    return parts.join(separator);
}

QString toolTipOf(const ReadingNote& note) {
    return plainToolTip(toQString(ReadingWords::message(note)) +
                        (note.excerpt.empty() ? QString() : QLatin1Char('\n') + toQString(note.excerpt)));
}

}  // namespace

ReadingNoteModel::ReadingNoteModel(const LogStore& logStore, QObject* parent)
    : QAbstractListModel(parent), store(logStore) {
    connect(&store, &LogStore::readingReportChanged, this, [this] {
        beginResetModel();
        endResetModel();
    });
}

int ReadingNoteModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(store.readingReport().notes().size());
}

QVariant ReadingNoteModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    const ReadingNote& note = store.readingReport().notes()[static_cast<std::size_t>(index.row())];
    switch (role) {
        case Qt::DecorationRole:
            return iconOf(note.severity());
        case Qt::DisplayRole:
            return rowText(note, QStringLiteral("\t"));
        case Qt::AccessibleTextRole:
            return rowText(note, QStringLiteral(", "));
        case Qt::ToolTipRole:
            return toolTipOf(note);
        case FindingDelegate::placeRole:
            return placeText(note);
        case FindingDelegate::messageRole:
            return toQString(ReadingWords::message(note));
        case FindingDelegate::excerptRole:
            return toQString(note.excerpt);
        default:
            return {};
    }
}

QString ReadingNoteModel::longestPlace() const {
    // The notes ascend, and a later line has no shorter number.
    const auto notes = store.readingReport().notes();
    return notes.empty() ? QString() : placeText(notes.back());
}

}  // namespace quillon
