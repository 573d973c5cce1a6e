// SPDX-License-Identifier: GPL-3.0-or-later
// Starts, shows a window, and ends when it has painted it for the first time: the application's window or,
// with the argument "empty", an empty one with the same libraries behind it.

#include "Quillon/App/QuillonApp.h"
#include "Quillon/Platform/Settings.h"
#include "Quillon/Views/Window/ContentView.h"

#include <QApplication>
#include <QEvent>
#include <QMainWindow>
#include <QTimer>

#include <memory>

namespace {

/// Ends the program behind the first painting of the window.
class EndAtFirstPaint : public QObject {
  public:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        }
        return QObject::eventFilter(watched, event);
    }
};

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    EndAtFirstPaint end;
    std::unique_ptr<QMainWindow> empty;
    std::unique_ptr<quillon::QuillonApp> quillonApp;
    QWidget* window = nullptr;
    if (QApplication::arguments().contains(QStringLiteral("empty"))) {
        empty = std::make_unique<QMainWindow>();
        empty->resize(1280, 800);
        window = empty.get();
    } else {
        quillonApp = std::make_unique<quillon::QuillonApp>(application, QStringList(),
                                                           std::make_unique<quillon::PassingSettings>());
        window = &quillonApp->window();
    }
    window->installEventFilter(&end);
    window->show();
    return QApplication::exec();
}
