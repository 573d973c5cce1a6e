// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Window/ShortcutList.h"

#include "Quillon/Views/Window/Commands.h"

#include <QStringList>

namespace quillon {

namespace {

QString keysOf(const Command& command) {
    QStringList keys;
    for (const QKeySequence& shortcut : command.shortcuts) {
        // The one beside the digits does the same; the handbook calls both by this name.
        const bool isReturn = shortcut == QKeySequence(Qt::Key_Return);
        if (shortcut != QKeySequence(Qt::Key_Enter)) {
            keys.append(isReturn ? QStringLiteral("Eingabe") : shortcut.toString(QKeySequence::NativeText));
        }
    }
    const QString place = command.reach == ShortcutReach::window ? QString()
                          : command.menu == CommandMenu::column  ? QStringLiteral(" (im Spaltenkopf)")
                                                                 : QStringLiteral(" (in der Tabelle)");
    return keys.join(QStringLiteral(" oder ")) + place;
}

}  // namespace

QString shortcutChapter() {
    QString chapter = QStringLiteral(
        "\n\n## Tastenkürzel\n\nDie Tasten der Befehle, die in den Menüs stehen. Wie sich Tabelle und Felder "
        "mit "
        "der Tastatur bedienen lassen, sagt [Tastatur](#tastatur).\n\n| Menü | Befehl | Taste "
        "|\n|---|---|---|\n");
    for (const Command& command : commands()) {
        if (!command.shortcuts.isEmpty()) {
            chapter +=
                QStringLiteral("| %1 | %2 | %3 |\n")
                    .arg(title(command.menu).remove(QLatin1Char('&')), command.plainTitle(), keysOf(command));
        }
    }
    return chapter;
}

}  // namespace quillon
