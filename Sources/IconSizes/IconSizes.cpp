// SPDX-License-Identifier: GPL-3.0-or-later
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>
#include <cstdlib>

namespace {

/// Those that menus, panels and window lists of desktops ask for, in pixels.
constexpr int sizesPx[] = {16, 22, 24, 32, 48, 64, 128, 256, 512};

bool render(QSvgRenderer& drawing, int sizePx, const QString& folder, const QString& name) {
    QImage image(sizePx, sizePx, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    drawing.render(&painter);
    painter.end();
    const QString sizeFolder = folder + QStringLiteral("/%1x%1/apps").arg(sizePx);
    return QDir().mkpath(sizeFolder) &&
           image.save(sizeFolder + QLatin1Char('/') + name + QStringLiteral(".png"));
}

}  // namespace

/// Draws an SVG file in the sizes of an icon theme: `icon-sizes FILE.svg FOLDER`. The pictures are called as
/// the file and lie in `FOLDER/16x16/apps` and so on. Run by the build; ends with 1 if a picture cannot be
/// made.
int main(int argumentCount, char** argumentValues) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argumentCount, argumentValues);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 3) {
        std::fputs("Usage: icon-sizes FILE.svg FOLDER\n", stderr);
        return EXIT_FAILURE;
    }
    QSvgRenderer drawing(arguments[1]);
    const QString name = QFileInfo(arguments[1]).completeBaseName();
    for (const int sizePx : sizesPx) {
        if (!drawing.isValid() || !render(drawing, sizePx, arguments[2], name)) {
            std::fprintf(stderr, "No picture of %d pixels could be made of %s\n", sizePx,
                         qPrintable(arguments[1]));
            return EXIT_FAILURE;
        }
    }
    return EXIT_SUCCESS;
}
