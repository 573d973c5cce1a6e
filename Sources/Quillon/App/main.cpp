// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/App/Application.h"
#include "Quillon/App/QuillonApp.h"
#include "Quillon/App/Terminal.h"
#include "Quillon/App/WindowPicture.h"
#include "Quillon/Platform/Settings.h"
#include "Quillon/Platform/StateFolder.h"
#include "Quillon/Views/Window/ContentView.h"

#include <csignal>
#include <cstddef>
#include <memory>
#include <span>

int main(int argumentCount, char** argumentValues) {
    const std::span given(argumentValues, static_cast<std::size_t>(argumentCount));
    if (const auto status = quillon::answerOnTerminal(given.subspan(argumentCount > 0 ? 1 : 0))) {
        return *status;
    }
    // A file that may not grow further is a failed write like any other.
    std::signal(SIGXFSZ, SIG_IGN);
    qInstallMessageHandler(quillon::endWithoutDisplay);
    quillon::Application application(argumentCount, argumentValues);
    qInstallMessageHandler(nullptr);
    QStringList arguments = QApplication::arguments().mid(1);
    const auto picture = quillon::WindowPicture::takenFrom(arguments);
    if (picture) {
        picture->prepare();
    }
    // A picture shows and changes nothing of what the user set.
    quillon::QuillonApp quillonApp(
        application, arguments,
        picture ? std::make_unique<quillon::PassingSettings>() : quillon::userSettings());
    application.whenOutOfMemory([&quillonApp] { quillonApp.tellOutOfMemory(); });
    if (picture) {
        picture->takeOf(quillonApp);
    } else {
        quillonApp.keepLogsIn(quillon::stateFolder() + QStringLiteral("/kept"));
        quillonApp.lookForUpdates();
        quillonApp.keepRecentFiles();
    }
    quillonApp.window().show();
    return QApplication::exec();
}
