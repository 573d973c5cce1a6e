#include "Quillon/Views/Icons.h"

#include <QGuiApplication>
#include <QPalette>
#include <QStandardPaths>

namespace quillon {

namespace {

bool isDark(const QPalette& palette) {
    return palette.color(QPalette::WindowText).lightness() > palette.color(QPalette::Window).lightness();
}

}  // namespace

QIcon icon(const QString& breezeName) {
    matchIconsToPalette();
    return QIcon::fromTheme(breezeName);
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
    const QString wanted =
        isDark(QGuiApplication::palette()) ? QStringLiteral("breeze-dark") : QStringLiteral("breeze");
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
