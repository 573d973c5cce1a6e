// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QWidget>

#include <functional>

namespace quillon {

/// F6 takes the keyboard from one pane of a window to the next, with shift to the one before: to the widget
/// where it was last, or else to the first that takes it. Shift+F10 opens the menu of what has the keyboard,
/// for which Qt knows the menu key alone where windows come from X11.
class PaneKeys : public QObject {
    Q_OBJECT

  public:
    /// `panesOfWindow` names them in their order at the moment; null ones and hidden ones are passed over.
    /// The window outlives the object.
    PaneKeys(QWidget& window, std::function<QWidgetList()> panesOfWindow);

  private:
    void remember(QWidget* focus);
    void go(int step);
    void openMenu() const;

    std::function<QWidgetList()> panes;
    QHash<QWidget*, QPointer<QWidget>> last;  ///< Where the keyboard was in each pane.
};

}  // namespace quillon
