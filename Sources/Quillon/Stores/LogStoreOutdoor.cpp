// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Catalogue/OutdoorFiles.h"
#include "Quillon/Platform/FileNames.h"
#include "Quillon/Platform/Files/OutdoorExport.h"
#include "Quillon/Stores/LogStore.h"
#include "Tallyrig/Outdoor/OutdoorCheck.h"
#include "Tallyrig/Text/VisibleText.h"

#include <QFileInfo>

#include <optional>
#include <string>

namespace quillon {

namespace {

/// Asks the user about what the files of an export would lose, if they would.
bool mayExport(const tallyrig::OutdoorExportFiles& wanted, Panels& panels) {
    OutdoorLosses losses;
    exportOutdoorFiles(wanted, std::nullopt,
                       [&](const tallyrig::OutdoorExportFile& file) { losses.add(file); });
    if (losses.empty()) {
        return true;
    }
    LossQuestion question;
    question.text =
        QStringLiteral("Die Dateien werden als ADIF geschrieben. Nicht alles käme beim Lesen wieder.");
    for (const std::string& line : losses.lines()) {
        question.losses.append(QString::fromStdString(line));
    }
    return panels.answerTo(question) != LossAnswer::cancel;
}

}  // namespace

void LogStore::setOutdoorProgram(tallyrig::OutdoorProgram program) {
    const Operation operation(*this);
    state.outdoorProgram = program;
}

void LogStore::setSotaRole(tallyrig::SOTARole role) {
    const Operation operation(*this);
    state.sotaRole = role;
}

void LogStore::runOutdoorCheck() {
    showIssues(tallyrig::outdoorIssues(state.document, state.outdoorProgram, state.sotaRole));
}

/// The open log may come from an export before, and that file is about to be replaced. Copies of all files of
/// an export, which the log gives again, would crowd out what the user may want back.
void LogStore::keepOpenFileIn(const QString& folder, const tallyrig::OutdoorExportFiles& wanted) const {
    if (!state.fileURL ||
        QFileInfo(*state.fileURL).canonicalPath() != QFileInfo(folder).canonicalFilePath()) {
        return;
    }
    const std::string openName = QFileInfo(*state.fileURL).fileName().toStdString();
    exportOutdoorFiles(wanted, std::nullopt, [&](const tallyrig::OutdoorExportFile& file) {
        if (file.filename == openName) {
            announceReplacing(*state.fileURL);
        }
    });
}

void LogStore::exportOutdoor() {
    const tallyrig::OutdoorExportFiles wanted =
        outdoorFiles(state.document, state.outdoorProgram, state.sotaRole);
    if (wanted.empty()) {
        setErrorMessage(QString::fromStdString(noOutdoorFilesMessage(state.outdoorProgram, state.sotaRole)));
        return;
    }
    const std::string name(rawValue(state.outdoorProgram));
    const auto chosen = panels.folderToWriteTo(
        PanelUse::outdoorFiles,
        QStringLiteral("Ordner für die %1-Dateien wählen.").arg(QString::fromStdString(name)),
        QStringLiteral("Hierhin exportieren"));
    if (!chosen) {
        return;
    }
    if (!mayExport(wanted, panels)) {
        return;
    }
    const QString folder = absolutePath(*chosen);
    keepOpenFileIn(folder, wanted);
    QStringList paths;
    const auto error =
        exportOutdoorFiles(wanted, folder.toStdString(), [&](const tallyrig::OutdoorExportFile& file) {
            paths.append(folder + QLatin1Char('/') + QString::fromStdString(file.filename));
            noteExportTo(paths.last());
        });
    if (error) {
        // Every program has the name of the first there was.
        setErrorMessage(QStringLiteral("POTA-Export fehlgeschlagen:\n") +
                        QString::fromStdString(tallyrig::text::visibleText(error->message)));
        return;
    }
    files.select(paths);
    emit outdoorExported(wanted.size(), folder);
}

}  // namespace quillon
