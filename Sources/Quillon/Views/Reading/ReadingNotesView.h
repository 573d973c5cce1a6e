// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/UUID.h"

#include <QWidget>

#include <optional>
#include <string>

class QLabel;
class QModelIndex;
class QPushButton;
class QStackedLayout;

namespace quillon {

class CopyableList;
class LogStore;
class RawPlaceView;
class ReadingNoteModel;

/// The strip under the table with what the reader said of the open log's file: the notes at the left, at the
/// right the chosen one in full with its place in the file as that was when it was read.
class ReadingNotesView : public QWidget {
    Q_OBJECT

  public:
    /// `logStore` outlives the view.
    explicit ReadingNotesView(LogStore& logStore, QWidget* parent = nullptr);

    /// Gives the notes the keyboard, and chooses the first if none is chosen.
    void enterNotes();

  signals:
    /// A note about this record was chosen, by mouse or keyboard: about no record, or about one that is no
    /// longer in the log, if it is absent. `field` is the one that it is about, if it names one.
    void noteChosen(std::optional<tallyrig::UUID> record, const std::string& field);
    /// The user wants the file read as the report's repair would have it.
    void repairWanted();
    /// The user is done with the list, by Return or Escape.
    void left();
    void closeWanted();

  private:
    QWidget* makeHead();
    QWidget* makeList();
    QWidget* makePlace();
    void refresh();
    void choose(const QModelIndex& note);

    LogStore& store;
    QLabel* counts = nullptr;
    QLabel* repairable = nullptr;
    QPushButton* repair = nullptr;
    ReadingNoteModel* model = nullptr;
    CopyableList* list = nullptr;
    QLabel* message = nullptr;
    RawPlaceView* raw = nullptr;
    QWidget* noneChosen = nullptr;
    QStackedLayout* chosen = nullptr;
    QStackedLayout* body = nullptr;
};

}  // namespace quillon
