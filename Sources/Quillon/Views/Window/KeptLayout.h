// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QObject>
#include <QString>

class QMainWindow;

namespace quillon {

class PaneSplitter;
class Settings;

/// Gives the window the size, place and state, and its panes the widths, that they had when the last program
/// ended, and keeps them for the next one. What lay on a screen that is not there any more comes back where
/// it can be seen.
class KeptLayout : public QObject {
  public:
    /// The settings outlive `window`, which becomes the parent and is not shown yet. `splitter` holds its
    /// panes by now.
    KeptLayout(QMainWindow& window, PaneSplitter& splitter, Settings& userSettings);

    /// Keeps the width of this pane, too. It is one of the splitter's.
    void addPane(QWidget& pane, const QString& name);

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void noteWidths();
    void keep();

    QMainWindow& mainWindow;
    PaneSplitter& panes;
    Settings& settings;
    QHash<QString, QWidget*> paneByKey;
    QHash<QString, int> movedWidths;  ///< By key; only what the user made wider or narrower.
};

}  // namespace quillon
