// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Window/RecentFilesMenu.h"

#include "Quillon/Views/Controls/Icons.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Tallyrig/Text/VisibleText.h"

#include <QFontMetrics>

namespace quillon {

namespace {

constexpr int mostNumbered = 9;
constexpr int mostCharacters = 60;

QString visible(const QString& text) {
    return toQString(tallyrig::text::visibleText(text.toStdString()));
}

}  // namespace

RecentFilesMenu::RecentFilesMenu(Settings& settings, QWidget* parent)
    : QMenu(QStringLiteral("&Zuletzt benutzt"), parent), files(settings), presence(new PresenceCheck(this)) {
    setToolTipsVisible(true);
    connect(this, &QMenu::aboutToShow, this, &RecentFilesMenu::fill);
    connect(presence, &PresenceCheck::looked, this, &RecentFilesMenu::showPresence);
}

void RecentFilesMenu::refresh() {
    menuAction()->setEnabled(!files.paths().isEmpty());
    if (icon().isNull()) {
        setIcon(quillon::icon(QStringLiteral("document-open-recent")));
    }
}

void RecentFilesMenu::fill() {
    clear();
    actionByPath.clear();
    const QStringList paths = files.paths();
    const QStringList names = distinctNames(paths);
    for (int index = 0; index < paths.size(); ++index) {
        addFile(paths[index], names[index], index + 1);
        presence->look(paths[index]);
    }
    addSeparator();
    connect(addAction(QStringLiteral("Liste &leeren")), &QAction::triggered, this, [this] { files.clear(); });
}

void RecentFilesMenu::addFile(const QString& path, const QString& name, int number) {
    const int width = mostCharacters * fontMetrics().averageCharWidth();
    // "&" marks the letter that picks an entry.
    const QString text = fontMetrics()
                             .elidedText(visible(name), Qt::ElideMiddle, width)
                             .replace(QLatin1Char('&'), QStringLiteral("&&"));
    const QString key = number <= mostNumbered ? QStringLiteral("&%1  ").arg(number) : QString();
    QAction* const action = addAction(key + text);
    action->setToolTip(plainToolTip(visible(path)));
    action->setStatusTip(path);
    connect(action, &QAction::triggered, this, [this, path] { emit chosen(path); });
    actionByPath.insert(path, action);
}

void RecentFilesMenu::showPresence(const QString& path, bool isThere) {
    if (QAction* const action = actionByPath.value(path); action != nullptr && !isThere) {
        action->setEnabled(false);
        action->setToolTip(
            plainToolTip(visible(path) + QStringLiteral("\nDie Datei ist nicht zu erreichen.")));
    }
}

}  // namespace quillon
