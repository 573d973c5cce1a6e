// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/UUID.h"

#include <QWidget>

#include <cstddef>
#include <optional>
#include <string>

class QLabel;
class QLineEdit;
class QModelIndex;
class QStackedLayout;
class QToolButton;

namespace quillon {

class CopyableList;
class IssueListModel;
class LogStore;

/// The strip under the table with the findings of the last check. Choosing one, by mouse or keyboard, selects
/// its QSO; a search that hides it is ended first. It stays chosen until another QSO is selected, also where
/// the filter leaves it out for a while.
class CheckResultsView : public QWidget {
    Q_OBJECT

  public:
    /// `logStore` outlives the view.
    explicit CheckResultsView(LogStore& logStore, QWidget* parent = nullptr);

  signals:
    /// A finding about this field of a record was chosen; the record is selected by now. `position` is the
    /// field's in the record, absent if it has none of that name.
    void findingChosen(tallyrig::UUID record, const std::string& field, std::optional<std::size_t> position);
    /// The user wants the log checked again.
    void checkRequested();
    /// The user is done with the list, by Return or Escape.
    void left();

  private:
    QWidget* makeHead();
    QWidget* makeList();
    void refresh();
    void showBody();
    void applyFilter();
    void enterFindings();
    void choose(const QModelIndex& finding);
    /// Lets the chosen finding stand out again in a list that was filled anew, if it is there.
    void markChosen();
    void followSelection();

    LogStore& store;
    QToolButton* errors = nullptr;
    QToolButton* warnings = nullptr;
    QWidget* noProblems = nullptr;
    QLineEdit* filterField = nullptr;
    IssueListModel* model = nullptr;
    CopyableList* list = nullptr;
    QWidget* nothingFound = nullptr;
    QWidget* nothingPasses = nullptr;
    QStackedLayout* body = nullptr;
    std::optional<std::size_t> chosenIssue;  ///< The position of the chosen finding in the store's list.
    tallyrig::UUID chosenRecord;             ///< The record of that.
    bool isMarking = false;                  ///< The list changes from here.
};

}  // namespace quillon
