#pragma once

#include "Tallyrig/Log/UUID.h"

#include <QWidget>

class QLabel;
class QListView;
class QModelIndex;
class QStackedLayout;

namespace quillon {

class IssueListModel;
class LogStore;

/// The strip under the table with the findings of the last check. Choosing one, by mouse or keyboard, selects
/// its QSO.
class CheckResultsView : public QWidget {
    Q_OBJECT

  public:
    /// `logStore` outlives the view.
    explicit CheckResultsView(LogStore& logStore, QWidget* parent = nullptr);

  signals:
    /// The record of a finding was chosen; it is selected by now.
    void recordChosen(tallyrig::UUID id);
    /// The user is done with the list, by Return or Escape.
    void left();

  private:
    QWidget* makeHead();
    QWidget* makeList();
    void refresh();
    void choose(const QModelIndex& finding);

    LogStore& store;
    QLabel* errors = nullptr;
    QLabel* warnings = nullptr;
    QLabel* noProblems = nullptr;
    IssueListModel* model;
    QListView* list = nullptr;
    QWidget* nothingFound = nullptr;
    QStackedLayout* body = nullptr;
};

}  // namespace quillon
