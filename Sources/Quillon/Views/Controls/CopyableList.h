// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QListView>

namespace quillon {

/// A list of texts of which the chosen rows go to the clipboard, by the usual key and from a context menu.
/// All rows are of one height, and only those in view are asked for.
class CopyableList : public QListView {
    Q_OBJECT

  public:
    /// What is copied of a row is its text of that role.
    explicit CopyableList(int roleToCopy, QWidget* parent = nullptr);

    /// The texts of the chosen rows from top to bottom, with a line break between.
    QString chosenText() const;
    /// The number of chosen rows. Cost: that of their blocks.
    int chosenCount() const;

  protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

  private:
    void copyChosen() const;

    int copyRole;
};

}  // namespace quillon
