// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSplitter>

#include <vector>

namespace quillon {

/// How wide a pane may be, in logical pixels.
struct PaneWidths {
    int least = 0;
    int ideal = 0;
    int most = QWIDGETSIZE_MAX;
    bool takesRoom = false;  ///< Whether it takes what room the window has beyond the ideal widths.
};

/// Panes side by side, with thin dividers that the user moves. No pane can be pushed out of sight.
class PaneSplitter : public QSplitter {
    Q_OBJECT

  public:
    explicit PaneSplitter(QWidget* parent = nullptr);

    /// Adds `pane` at the right and gives each pane its ideal width.
    void addPane(QWidget* pane, PaneWidths widths);

    /// Gives `pane`, one that was added, this width as far as its own limits let it.
    void setIdealWidth(QWidget& pane, int width);

  protected:
    QSplitterHandle* createHandle() override;

  private:
    QList<int> idealWidths;
};

}  // namespace quillon
