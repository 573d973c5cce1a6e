// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Stores/AppStores.h"
#include "Tallyrig/Analysis/ADIFComparison.h"
#include "Tallyrig/Log/UUID.h"

#include <QObject>
#include <QPoint>
#include <QString>
#include <QWidgetList>

#include <memory>
#include <optional>

class QBoxLayout;
class QStackedWidget;

namespace quillon {

class CompareView;
class ContestView;
class CrossCheckRunner;
class CrossCheckView;
class PaneSplitter;
class QSOTableView;
class ReadingNotesView;
class RecordDetailView;
class StatsView;
class TableQuestions;

/// What stands beside the sidebar: the table with the findings below it and the chosen QSO at its right, or
/// in their place the one pane that the mode asks for. Such a pane is made when it is first seen.
class WorkArea : public QObject {
    Q_OBJECT

  public:
    /// Adds its panes to `splitter`, which is its parent.
    WorkArea(const AppStores& appStores, PaneSplitter& splitter);
    ~WorkArea() override;

    QSOTableView& table() const { return *tableView; }
    RecordDetailView& detail() const { return *detailView; }
    /// The one who keeps the cross-check up to date, seen or not.
    CrossCheckRunner& crossCheck() const { return *crossRunner; }

    bool isTableShown() const;
    bool isCrossCheckShown() const;
    /// The side of the comparison that is seen at `point` of the screen; absent where there is none.
    std::optional<tallyrig::ADIFComparison::Side> comparedSideAt(QPoint point) const;
    /// Lets the mode be one that shows the table, if it is not.
    void showTable();
    /// Selects the QSO and shows it in the table, which takes the keyboard.
    void showQSO(tallyrig::UUID record);

    /// Shows what the reader said of the log's file, in the place of the findings, and gives it the keyboard.
    void showReadingNotes();
    /// The findings come back, if there are any to show.
    void hideReadingNotes();

    /// Gives the keyboard to what is shown.
    void focus();
    void focusTable();
    /// From left to right and top to bottom, the hidden ones too.
    QWidgetList panes() const;
    /// Ends typing in a cell, which writes what was typed.
    void commitEditing();

  signals:
    /// The user wants the log checked once more.
    void checkRequested();
    /// The user wants the log's file read as the repair of its reading report would have it.
    void repairWanted();
    /// Something happened that cannot be seen in the panes; `text` says so.
    void noticed(const QString& text);

  private:
    void buildTable(PaneSplitter& splitter);
    void showMode();
    void showResults();
    void makeReadingNotes();
    /// Adds a strip under the table.
    QWidget* addStrip(QWidget& view);
    QWidget* paneOfMode();
    void addPane(QWidget& pane);
    CompareView* comparePane();
    ContestView* contestPane();
    CrossCheckView* crossCheckPane();
    StatsView* statsPane();

    AppStores stores;
    std::unique_ptr<TableQuestions> questions;
    QWidget* tableArea = nullptr;
    QBoxLayout* tableColumn = nullptr;
    QSOTableView* tableView = nullptr;
    RecordDetailView* detailView = nullptr;
    QWidget* results = nullptr;       ///< Null until there are results to show.
    QWidget* readingStrip = nullptr;  ///< Null until it is to be shown.
    ReadingNotesView* readingNotes = nullptr;
    bool areReadingNotesShown = false;
    QStackedWidget* dashboard = nullptr;  ///< Takes the place of the table in the modes that want it.
    CompareView* compareView = nullptr;   ///< Null until seen, as those below.
    ContestView* contestView = nullptr;
    CrossCheckView* crossView = nullptr;
    StatsView* statsView = nullptr;
    CrossCheckRunner* crossRunner;
};

}  // namespace quillon
