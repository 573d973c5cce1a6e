// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/Desktop/DesktopBrowser.h"
#include "Quillon/Platform/Desktop/DesktopFileManager.h"
#include "Quillon/Platform/Desktop/DesktopPanels.h"
#include "Quillon/Platform/Desktop/DesktopRecentFiles.h"
#include "Quillon/Platform/Desktop/FontMeasurer.h"
#include "Quillon/Platform/HTTP/ModuleHTTP.h"
#include "Quillon/Platform/Settings.h"
#include "Quillon/Stores/CompareStore.h"
#include "Quillon/Stores/ContestStore.h"
#include "Quillon/Stores/CrossCheckStore.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Updates/DesktopInstallPlatform.h"
#include "Quillon/Updates/UpdateManager.h"

#include <QStringList>
#include <QTimer>
#include <QTranslator>

#include <memory>

class QApplication;

namespace quillon {

class ContentView;
class LogKeeper;
class ProgramEnd;

/// The program: it owns the stores and opens the one main window.
class QuillonApp {
  public:
    /// `arguments` are those of the program without its name. `application` outlives this.
    QuillonApp(QApplication& application, const QStringList& arguments,
               std::unique_ptr<Settings> userSettings);
    ~QuillonApp();
    /// Remembers for the user which logs were open.
    void keepRecentFiles();
    /// Lets the log outlive the program in `folder`. To be called before the window is shown, if at all.
    void keepLogsIn(const QString& folder);
    /// Looks for an update when the window has come up. To be called before it is shown, if at all.
    void lookForUpdates();

    LogStore& store() { return logStore; }
    CompareStore& compare() { return compareStore; }
    ContestStore& contest() { return contestStore; }
    ContentView& window() { return *contentView; }
    /// Tells the user that what was asked for last was given up.
    void tellOutOfMemory();

  private:
    void noteRecentFile();

    QTranslator translator;  ///< The words of Qt's own dialogs.
    std::unique_ptr<Settings> settings;
    DesktopPanels panels;
    FontMeasurer measurer;
    DesktopFileManager fileManager;
    DesktopBrowser browser;
    ModuleHTTP http;
    DesktopInstallPlatform installPlatform;
    DesktopRecentFiles recentFiles;
    QTimer recentFileDue;  ///< One note for all that changes in one turn of the event loop.
    LogStore logStore;
    CompareStore compareStore;
    ContestStore contestStore;
    CrossCheckStore crossCheckStore;
    UpdateManager updateManager;
    std::unique_ptr<LogKeeper> keeper;
    std::unique_ptr<ContentView> contentView;
    std::unique_ptr<ProgramEnd> programEnd;
};

}  // namespace quillon
