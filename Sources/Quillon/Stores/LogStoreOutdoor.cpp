#include "Quillon/Catalogue/OutdoorFiles.h"
#include "Quillon/Platform/FileNames.h"
#include "Quillon/Platform/Files/OutdoorExport.h"
#include "Quillon/Stores/LogStore.h"
#include "Tallyrig/Outdoor/OutdoorCheck.h"
#include "Tallyrig/Text/VisibleText.h"

#include <string>

namespace quillon {

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

void LogStore::exportOutdoor() {
    const tallyrig::OutdoorExportFiles wanted =
        outdoorFiles(state.document, state.outdoorProgram, state.sotaRole);
    if (wanted.empty()) {
        setErrorMessage(QString::fromStdString(noOutdoorFilesMessage(state.outdoorProgram, state.sotaRole)));
        return;
    }
    const std::string name(rawValue(state.outdoorProgram));
    const auto chosen = panels.folderToWriteTo(
        QStringLiteral("Ordner für die %1-Dateien wählen.").arg(QString::fromStdString(name)),
        QStringLiteral("Hierhin exportieren"));
    if (!chosen) {
        return;
    }
    const QString folder = absolutePath(*chosen);
    QStringList paths;
    const auto error =
        exportOutdoorFiles(wanted, folder.toStdString(), [&](const tallyrig::OutdoorExportFile& file) {
            paths.append(folder + QLatin1Char('/') + QString::fromStdString(file.filename));
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
