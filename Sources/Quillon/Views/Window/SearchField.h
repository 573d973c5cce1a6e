// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

namespace quillon {

class LogStore;

/// The field in the tool bar that the log is searched with. It shows the search that is in force, whoever
/// began it.
class SearchField : public QLineEdit {
    Q_OBJECT

  public:
    /// `logStore` outlives the field.
    explicit SearchField(LogStore& logStore, QWidget* parent = nullptr);

    QSize sizeHint() const override;

    /// Takes the keyboard, ready for another search.
    void startTyping();

  signals:
    /// The user types, and what the log shows follows.
    void typed();
    /// The user is done with the search, or has ended it, and goes on among the hits.
    void left();

  private:
    LogStore& store;
};

}  // namespace quillon
