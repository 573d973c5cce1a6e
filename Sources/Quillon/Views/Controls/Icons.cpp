// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/Icons.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QStandardPaths>

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

namespace quillon {

namespace {

bool isDark(const QPalette& palette) {
    return palette.color(QPalette::WindowText).lightness() > palette.color(QPalette::Window).lightness();
}

bool isPaletteDark() {
    return isDark(QGuiApplication::palette());
}

/// The file of a Breeze icon in one of its sizes: of those that came with the program, or of the system's.
/// Empty if neither has it.
QString breezeFile(const QString& theme, const QString& name, int sizePx) {
    const QString ownData = QCoreApplication::applicationDirPath() + QStringLiteral("/../share/");
    for (const char* group : {"actions", "devices", "status"}) {
        const QString drawing =
            QStringLiteral("icons/%1/%2/%3/%4.svg").arg(theme, QLatin1String(group)).arg(sizePx).arg(name);
        if (QFile::exists(ownData + drawing)) {
            return ownData + drawing;
        }
        const QString file = QStandardPaths::locate(QStandardPaths::GenericDataLocation, drawing);
        if (!file.isEmpty()) {
            return file;
        }
    }
    return {};
}

/// The sizes in which Breeze draws its icons: the smaller ones are no scaled copies but have thinner detail.
constexpr std::array breezeSizes = {16, 22, 32};

/// The position in `breezeSizes` of the drawing that is meant for `sizePx`.
std::size_t breezeSizeFor(int sizePx) {
    return sizePx <= 18 ? 0 : sizePx <= 26 ? 1 : 2;
}

/// The drawing for that size, or the nearest smaller or else larger one that there is.
QIcon breezeIcon(const QString& theme, const QString& name, std::size_t size) {
    for (const std::size_t candidate : {size, size > 0 ? size - 1 : 1, size > 1 ? 0 : std::size_t{2}}) {
        // An icon of its own for each file: Qt keeps but one vector file in an icon.
        const QString file = breezeFile(theme, name, breezeSizes[candidate]);
        if (!file.isEmpty()) {
            return QIcon(file);
        }
    }
    return QIcon::fromTheme(name);
}

/// An icon that is looked for when it is painted, in the variant that the palette asks for at that moment.
/// Qt's own look-up searches every folder of the theme for every icon as soon as it is named, most of the
/// time that the window took to come up.
class BreezeEngine : public QIconEngine {
  public:
    explicit BreezeEngine(QString breezeName) : name(std::move(breezeName)) {}

    void paint(QPainter* painter, const QRect& area, QIcon::Mode mode, QIcon::State state) override {
        current(std::min(area.width(), area.height())).paint(painter, area, Qt::AlignCenter, mode, state);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return scaledPixmap(size, mode, state, 1.0);
    }
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal scale) override {
        const QSize logical = size / scale;
        return current(std::min(logical.width(), logical.height())).pixmap(logical, scale, mode, state);
    }
    QSize actualSize(const QSize& size, QIcon::Mode, QIcon::State) override { return size; }
    bool isNull() override { return false; }
    QIconEngine* clone() const override { return new BreezeEngine(*this); }

  private:
    const QIcon& current(int sizePx) {
        const bool dark = isPaletteDark();
        const std::size_t size = breezeSizeFor(sizePx);
        QIcon& found = (dark ? darkVariants : lightVariants)[size];
        if (found.isNull()) {
            found = breezeIcon(dark ? QStringLiteral("breeze-dark") : QStringLiteral("breeze"), name, size);
        }
        return found;
    }

    QString name;
    std::array<QIcon, breezeSizes.size()> lightVariants;
    std::array<QIcon, breezeSizes.size()> darkVariants;
};

}  // namespace

QIcon icon(const QString& breezeName) {
    return breezeName.startsWith(QLatin1Char(':')) ? QIcon(breezeName) : QIcon(new BreezeEngine(breezeName));
}

QIcon severityIcon(tallyrig::ValidationSeverity severity) {
    return severity == tallyrig::ValidationSeverity::error ? QIcon(QStringLiteral(":/Icons/error.svg"))
                                                           : QIcon(QStringLiteral(":/Icons/warning.svg"));
}

QIcon checkIcon() {
    return QIcon(QStringLiteral(":/Icons/check.svg"));
}

QIcon successIcon() {
    return QIcon(QStringLiteral(":/Icons/success.svg"));
}

QIcon applicationIcon() {
    return QIcon(QStringLiteral(":/Icons/quillon.svg"));
}

void matchIconsToPalette() {
    const QString wanted = isPaletteDark() ? QStringLiteral("breeze-dark") : QStringLiteral("breeze");
    if (QIcon::themeName() == wanted) {
        return;
    }
    // Not every platform plugin looks where the system keeps its icon themes.
    QStringList folders = QIcon::themeSearchPaths();
    for (const QString& folder : QStandardPaths::locateAll(
             QStandardPaths::GenericDataLocation, QStringLiteral("icons"), QStandardPaths::LocateDirectory)) {
        if (!folders.contains(folder)) {
            folders.append(folder);
        }
    }
    if (folders != QIcon::themeSearchPaths()) {
        QIcon::setThemeSearchPaths(folders);
    }
    QIcon::setThemeName(wanted);
    QIcon::setFallbackThemeName(QStringLiteral("breeze"));
}

}  // namespace quillon
