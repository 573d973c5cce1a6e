#include "Quillon/App/QuillonApp.h"
#include "Quillon/App/WindowPicture.h"
#include "Quillon/Views/Window/ContentView.h"

#include <QApplication>

#include <csignal>

int main(int argumentCount, char** argumentValues) {
    // A file that may not grow further is a failed write like any other.
    std::signal(SIGXFSZ, SIG_IGN);
    QApplication application(argumentCount, argumentValues);
    QStringList arguments = QApplication::arguments().mid(1);
    const auto picture = quillon::WindowPicture::takenFrom(arguments);
    if (picture) {
        picture->prepare();
    }
    quillon::QuillonApp quillonApp(application, arguments);
    if (picture) {
        picture->takeOf(quillonApp);
    }
    quillonApp.window().show();
    return QApplication::exec();
}
