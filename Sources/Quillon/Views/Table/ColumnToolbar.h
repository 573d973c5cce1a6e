// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QLabel;
class QMenu;
class QPushButton;

namespace quillon {

class LogStore;

/// The bar of column commands over the table.
class ColumnToolbar : public QWidget {
    Q_OBJECT

  public:
    /// The store outlives the bar.
    explicit ColumnToolbar(LogStore& logStore, QWidget* parent = nullptr);

    /// The menu of fields that can be added, as it is now.
    QMenu& addMenu();

  signals:
    /// The user wants a column of a name of their own.
    void customFieldRequested();

  private:
    void refresh();
    void fillMenu();

    LogStore& store;
    QLabel* count;
    QMenu* menu;
    QPushButton* clearSort;
};

}  // namespace quillon
