#include "Quillon/Views/Icons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QStandardPaths>

#include <utility>

namespace quillon {

namespace {

bool isDark(const QPalette& palette) {
    return palette.color(QPalette::WindowText).lightness() > palette.color(QPalette::Window).lightness();
}

bool isPaletteDark() {
    return isDark(QGuiApplication::palette());
}

/// The file of a Breeze icon in one of its sizes; empty if the system has none.
QString breezeFile(const QString& theme, const QString& name, int sizePx) {
    for (const char* group : {"actions", "devices", "status"}) {
        const QString file = QStandardPaths::locate(
            QStandardPaths::GenericDataLocation,
            QStringLiteral("icons/%1/%2/%3/%4.svg").arg(theme, QLatin1String(group)).arg(sizePx).arg(name));
        if (!file.isEmpty()) {
            return file;
        }
    }
    return {};
}

QIcon breezeIcon(const QString& theme, const QString& name) {
    QIcon found;
    for (const int sizePx : {16, 22, 32}) {
        const QString file = breezeFile(theme, name, sizePx);
        if (!file.isEmpty()) {
            found.addFile(file, QSize(sizePx, sizePx));
        }
    }
    return found.isNull() ? QIcon::fromTheme(name) : found;
}

/// An icon that is looked for when it is painted, in the variant that the palette asks for at that moment.
/// Qt's own look-up searches every folder of the theme for every icon as soon as it is named, most of the
/// time that the window took to come up.
class BreezeEngine : public QIconEngine {
  public:
    explicit BreezeEngine(QString breezeName) : name(std::move(breezeName)) {}

    void paint(QPainter* painter, const QRect& area, QIcon::Mode mode, QIcon::State state) override {
        current().paint(painter, area, Qt::AlignCenter, mode, state);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return current().pixmap(size, 1.0, mode, state);
    }
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal scale) override {
        return current().pixmap(size / scale, scale, mode, state);
    }
    QSize actualSize(const QSize& size, QIcon::Mode, QIcon::State) override { return size; }
    bool isNull() override { return false; }
    QIconEngine* clone() const override { return new BreezeEngine(*this); }

  private:
    const QIcon& current() {
        const bool dark = isPaletteDark();
        QIcon& variant = dark ? darkVariant : lightVariant;
        if (variant.isNull()) {
            variant = breezeIcon(dark ? QStringLiteral("breeze-dark") : QStringLiteral("breeze"), name);
        }
        return variant;
    }

    QString name;
    QIcon lightVariant;
    QIcon darkVariant;
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
