// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Keeping/KeptWords.h"

#include "Quillon/Platform/AppInfo.h"
#include "Tallyrig/Text/VisibleText.h"

#include <string_view>

namespace quillon {

namespace {

QString shown(std::string_view text) {
    return QString::fromStdString(tallyrig::text::visibleText(text));
}

}  // namespace

QString nameOf(const KeptNote& note) {
    return note.path.empty() ? QStringLiteral("Unbenanntes Logbuch")
                             : shown(std::string_view(note.path).substr(note.path.rfind('/') + 1));
}

QString folderOf(const KeptNote& note) {
    const std::size_t slash = note.path.rfind('/');
    return slash == std::string::npos ? QString() : shown(std::string_view(note.path).substr(0, slash));
}

QString reasonFor(const KeptNote& note) {
    switch (note.reason) {
        case KeptReason::newLog:
            return QStringLiteral("Neues Logbuch begonnen");
        case KeptReason::otherLog:
            return QStringLiteral("Anderes Log geöffnet");
        case KeptReason::windowClosed:
            return QStringLiteral("Fenster geschlossen");
        case KeptReason::sessionEnded:
            return QStringLiteral("Sitzung beendet");
        case KeptReason::terminated:
            return QStringLiteral("Von außen beendet");
        case KeptReason::displayLost:
            return QStringLiteral("Anzeige verloren");
        case KeptReason::overwritten:
            return QStringLiteral("Vor dem Überschreiben");
        case KeptReason::inHand:
            break;
    }
    return QStringLiteral("Absturz");
}

QString keptSentence(const KeptNote& note) {
    const QString why = note.reason == KeptReason::inHand
                            ? appName() + QStringLiteral(" wurde nicht ordentlich beendet. ")
                            : QString();
    return why + (note.path.empty()
                      ? QStringLiteral("Das ungesicherte Logbuch ohne Namen wurde aufgehoben.")
                      : QStringLiteral("Die ungesicherten Änderungen an „%1“ wurden aufgehoben.")
                            .arg(nameOf(note)));
}

}  // namespace quillon
