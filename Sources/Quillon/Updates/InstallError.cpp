// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Updates/InstallError.h"

#include "Quillon/Platform/Files/SystemError.h"

namespace quillon {

InstallError InstallError::badURL() {
    return {QStringLiteral("Download-URL ungültig.")};
}

InstallError InstallError::httpStatus(int code) {
    return {QStringLiteral("Server antwortete mit HTTP %1").arg(code)};
}

InstallError InstallError::truncated() {
    return {QStringLiteral("Download unvollständig — bitte erneut versuchen.")};
}

InstallError InstallError::noChecksum() {
    return {QStringLiteral("Manifest enthält keine SHA-256 — Auto-Install nicht möglich.")};
}

InstallError InstallError::checksumMismatch() {
    return {QStringLiteral("SHA-256 stimmt nicht mit dem Manifest überein — Download verworfen.")};
}

InstallError InstallError::notAnAppBundle(const QString& path) {
    return {QStringLiteral("Läuft nicht aus einem App-Bundle (%1) — bitte Archiv manuell installieren.")
                .arg(path)};
}

InstallError InstallError::targetNotWritable(const QString& directory) {
    return {QStringLiteral("Keine Schreibrechte in %1.").arg(directory)};
}

InstallError InstallError::mountFailed() {
    return {QStringLiteral("Archiv konnte nicht gemountet werden.")};
}

InstallError InstallError::appNotFoundInDMG() {
    return {QStringLiteral("Kein App-Bundle im Archiv gefunden.")};
}

InstallError InstallError::processFailed(const QString& tool, int code, const QString& said) {
    constexpr qsizetype mostCharacters = 300;
    // All in one, for a place mark in the words would be taken for one of ours.
    return {QStringLiteral("%1 schlug fehl (Exit %2): %3")
                .arg(tool, QString::number(code), said.right(mostCharacters).trimmed())};
}

InstallError InstallError::ofSystem(int error) {
    return {QString::fromStdString(systemErrorSentence(error))};
}

}  // namespace quillon
