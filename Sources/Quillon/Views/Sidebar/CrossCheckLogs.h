// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QPushButton;

namespace quillon {

class CrossCheckStore;

/// The list of the logs that take part in a cross-check: in each row a field with the owner, to be corrected,
/// the name of the log, and a button that takes the log out.
/// The list draws what is seen of it: there may be ten thousand logs.
class CrossCheckLogs : public QWidget {
    Q_OBJECT

  public:
    /// The store outlives the list.
    explicit CrossCheckLogs(CrossCheckStore& crossStore, QWidget* parent = nullptr);

  private:
    class Model;
    class Delegate;
    class Table;

    void refresh();

    CrossCheckStore& store;
    Model* model;
    Table* table;
    QPushButton* removeAll;
    bool isRefreshing = false;
};

}  // namespace quillon
