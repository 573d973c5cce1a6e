// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace quillon {

class EmptyState;
class LogStore;

/// Says in the place of the rows that the search finds nothing in the log, and offers to end it. Otherwise
/// hidden. A search outlasts the log that it was typed for, and an empty table would not tell why.
class NoHits : public QWidget {
    Q_OBJECT

  public:
    /// Covers `rows`. The store outlives it.
    NoHits(LogStore& logStore, QWidget& rows);

  signals:
    /// The user ended the search.
    void searchEnded();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void refresh();

    LogStore& store;
    EmptyState* message;
};

}  // namespace quillon
