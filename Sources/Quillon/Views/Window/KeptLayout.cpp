// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Window/KeptLayout.h"

#include "Quillon/Platform/Settings.h"
#include "Quillon/Views/Controls/PaneSplitter.h"

#include <QCoreApplication>
#include <QEvent>
#include <QMainWindow>

namespace quillon {

namespace {

const QString geometryKey = QStringLiteral("window.geometry");

}  // namespace

KeptLayout::KeptLayout(QMainWindow& window, PaneSplitter& splitter, Settings& userSettings)
    : QObject(&window), mainWindow(window), panes(splitter), settings(userSettings) {
    // Says no to what it did not write, and moves onto the screen what lies beside it.
    window.restoreGeometry(settings.bytes(geometryKey));
    window.installEventFilter(this);
    connect(&splitter, &QSplitter::splitterMoved, this, &KeptLayout::noteWidths);
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] {
        // One that was closed was seen to then; it has no place any more.
        if (mainWindow.isVisible()) {
            keep();
        }
    });
}

void KeptLayout::addPane(QWidget& pane, const QString& name) {
    const QString key = QStringLiteral("window.") + name + QStringLiteral("Width");
    paneByKey.insert(key, &pane);
    if (const int width = settings.number(key, 0); width > 0) {
        panes.setIdealWidth(pane, width);
    }
}

bool KeptLayout::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Close && mainWindow.isVisible()) {
        keep();
    }
    return QObject::eventFilter(watched, event);
}

void KeptLayout::noteWidths() {
    for (auto pane = paneByKey.cbegin(); pane != paneByKey.cend(); ++pane) {
        if (pane.value()->isVisible()) {
            movedWidths.insert(pane.key(), pane.value()->width());
        }
    }
}

void KeptLayout::keep() {
    settings.setValue(geometryKey, mainWindow.saveGeometry());
    for (auto width = movedWidths.cbegin(); width != movedWidths.cend(); ++width) {
        settings.setValue(width.key(), width.value());
    }
}

}  // namespace quillon
