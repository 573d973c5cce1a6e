// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/TableMetrics.h"

#include <QClipboard>
#include <QLineEdit>

namespace quillon {

/// The text field that is put over a cell or a column's name while it is edited.
///
/// Return, Tab, a press of the mouse anywhere else in the application and losing the focus all commit. A
/// press into the parent widget is the parent's to handle: it knows what lay under the pointer before the
/// commit moved it.
///
/// What is pasted comes to stand on one line: each tab and each line break becomes a blank, and those at the
/// end go. Those that a value has already stay.
class InlineEditor : public QLineEdit {
    Q_OBJECT

  public:
    /// Where the user goes on leaving the field.
    enum class Leave {
        stay,      ///< Nowhere: by Return or Escape.
        forward,   ///< To the next cell.
        backward,  ///< To the one before.
        away,      ///< To another part of the window, or a command is run.
    };

    /// What the Escape key does to what stands in the field.
    enum class Escape { commits, drops };

    InlineEditor(Escape escapeKey, QWidget* parent);

    /// A press of the mouse on `widget` does not close the field by itself: the widget commits when it knows
    /// what was pressed, for what is written can move that from under the pointer.
    void leavePressesTo(const QWidget& widget) { informedWidget = &widget; }

    /// Puts the text where the cell has its own.
    void setMetrics(const TableMetrics& metrics);

    bool isOpen() const { return open; }
    /// Shows the field with `draft`, all of it selected, and takes the focus; what stood in an open one is
    /// committed first. The place is set with `setGeometry`.
    void begin(const QString& draft);
    /// Hides the field and then commits what stands in it; nothing happens if it is not open.
    void commit(Leave leave = Leave::away);
    /// Hides the field without a word, as for a cell that is gone.
    void dismiss();

  signals:
    /// The field is closed; `draft` is what stood in it.
    void committed(const QString& draft, Leave leave);

  protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    bool ownsPopup() const;
    void pasteOnOneLine(QClipboard::Mode from);

    Escape escape;
    const QWidget* informedWidget = nullptr;  ///< Beside the parent, which commits itself, too.
    bool open = false;
};

}  // namespace quillon
