// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/App/QuillonApp.h"

#include "Quillon/App/ProgramEnd.h"
#include "Quillon/Keeping/LogKeeper.h"
#include "Quillon/Platform/AppInfo.h"
#include "Quillon/Platform/FileNames.h"
#include "Quillon/Platform/RecentFiles.h"
#include "Quillon/Updates/UpdateInstaller.h"
#include "Quillon/Views/Controls/Colors.h"
#include "Quillon/Views/Controls/FocusMarkStyle.h"
#include "Quillon/Views/Controls/Icons.h"
#include "Quillon/Views/Window/ContentView.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QStyle>

#include <utility>

namespace quillon {

namespace {

void setUp(QApplication& application, QTranslator& translator) {
    QApplication::setApplicationName(appName());
    QApplication::setApplicationVersion(appVersion());
    QApplication::setDesktopFileName(QStringLiteral("quillon"));
    QApplication::setWindowIcon(applicationIcon());
    QApplication::setStyle(new FocusMarkStyle(QApplication::style()->name()));
    makePaletteReadable();
    const QLocale german(QLocale::German, QLocale::Germany);
    QLocale::setDefault(german);
    if (translator.load(german, QStringLiteral("qtbase"), QStringLiteral("_"),
                        QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        application.installTranslator(&translator);
    }
}

}  // namespace

QuillonApp::QuillonApp(QApplication& application, const QStringList& arguments,
                       std::unique_ptr<Settings> userSettings)
    : settings(std::move(userSettings)),
      panels(*settings),
      installPlatform(QCoreApplication::applicationDirPath()),
      logStore(*settings, panels, measurer, fileManager),
      compareStore(*settings, panels),
      crossCheckStore(panels, fileManager),
      updateManager(QStringLiteral(QUILLON_UPDATE_MANIFEST_URL), *settings, http, browser) {
    setUp(application, translator);
    contentView = std::make_unique<ContentView>(
        AppStores{logStore, compareStore, contestStore, crossCheckStore}, *settings, arguments);
    contentView->offerUpdates(updateManager,
                              [this] { return std::make_unique<UpdateInstaller>(http, installPlatform); });
    QObject::connect(&logStore, &LogStore::fileURLChanged, contentView.get(), [this] {
        if (logStore.fileURL()) {
            panels.setLogFolder(folderOf(*logStore.fileURL()));
        }
    });
}

QuillonApp::~QuillonApp() = default;

void QuillonApp::keepRecentFiles() {
    recentFileDue.setSingleShot(true);
    QObject::connect(&recentFileDue, &QTimer::timeout, &recentFiles, [this] { noteRecentFile(); });
    // Opened, or saved under another name; saved for the first time after it was brought back.
    for (const auto signal : {&LogStore::fileURLChanged, &LogStore::savedDocumentChanged}) {
        QObject::connect(&logStore, signal, &recentFileDue, qOverload<>(&QTimer::start));
    }
}

void QuillonApp::noteRecentFile() {
    // A log that was brought back was not in its file.
    if (!logStore.fileURL() || logStore.isDirty()) {
        return;
    }
    const QString path = *logStore.fileURL();
    if (!liesIn(foldersOfPassingFiles(), path)) {
        RecentFiles(*settings).add(path);
        recentFiles.note(path);
    }
}

void QuillonApp::keepLogsIn(const QString& folder) {
    keeper = std::make_unique<LogKeeper>(logStore, compareStore, folder.toStdString(), LogKeeper::Pace());
    contentView->offerKept(*keeper);
    programEnd = std::make_unique<ProgramEnd>(
        *qApp,
        [this](KeptReason reason) {
            // What is typed in a cell is the user's as well; but without a display no cell may be touched.
            if (reason != KeptReason::displayLost) {
                contentView->commitEditing();
            }
            keeper->end(reason);
        },
        [this] {
            contentView->commitEditing();
            keeper->keepNow();
        });
}

void QuillonApp::lookForUpdates() {
    // Queued, so that the window answers first: what transfers stand on is large.
    QObject::connect(contentView.get(), &ContentView::cameUp, &updateManager, &UpdateManager::checkOnStartup,
                     Qt::QueuedConnection);
}

void QuillonApp::tellOutOfMemory() {
    logStore.setErrorMessage(
        QStringLiteral("Der Arbeitsspeicher reicht dafür nicht.\nDas offene Log ist unversehrt."));
}

}  // namespace quillon
