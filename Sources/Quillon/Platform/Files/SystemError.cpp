// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/Files/SystemError.h"

#include <cerrno>

namespace quillon {

std::string systemErrorSentence(int error) {
    switch (error) {
        case ENOENT:
            return "Die Datei existiert nicht.";
        case ENOTDIR:
            return "Ein Teil des Pfads ist kein Ordner.";
        case EACCES:
        case EPERM:
            return "Die Berechtigung fehlt.";
        case EISDIR:
            return "Das ist ein Ordner und keine Datei.";
        case EEXIST:
        case ENOTEMPTY:
            return "Unter diesem Namen gibt es schon etwas.";
        case ENOSPC:
        case EDQUOT:
            return "Auf dem Datenträger ist kein Platz mehr.";
        case EROFS:
            return "Der Datenträger ist schreibgeschützt.";
        case ELOOP:
            return "Der Pfad führt über zu viele symbolische Verknüpfungen.";
        case ENAMETOOLONG:
            return "Der Dateiname ist zu lang.";
        case EFBIG:
        case EOVERFLOW:
        case ENOMEM:
            return "Die Datei ist zu groß.";
        case EIO:
            return "Der Datenträger meldet einen Ein-/Ausgabefehler.";
        case EBUSY:
        case ETXTBSY:
            return "Die Datei wird gerade benutzt.";
        case EMFILE:
        case ENFILE:
            return "Es sind zu viele Dateien geöffnet.";
        case EAGAIN:
        case ENXIO:
        case ENODEV:
            return "Das ist keine gewöhnliche Datei.";
        case EPIPE:
            return "Der Empfänger nimmt nichts mehr an.";
        case EBADF:
            return "Sie ist geschlossen.";
        default:
            return "Das System meldet den Fehler " + std::to_string(error) + ".";
    }
}

}  // namespace quillon
