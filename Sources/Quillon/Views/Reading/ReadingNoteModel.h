// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Views/Controls/FindingDelegate.h"

#include <QAbstractListModel>
#include <QString>

namespace quillon {

class LogStore;

/// The notes of the open log's reading report as the rows of a list, in the order of the file. The row is the
/// note's position in the report. Texts are made when a row is looked at.
class ReadingNoteModel : public QAbstractListModel {
    Q_OBJECT

  public:
    /// `logStore` outlives the model.
    explicit ReadingNoteModel(const LogStore& logStore, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

    /// The longest place of a note, such as "Zeile 1"; empty without notes.
    QString longestPlace() const;

  private:
    const LogStore& store;
};

}  // namespace quillon
