// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/Files/Files.h"
#include "Quillon/Stores/FileFailure.h"
#include "Quillon/Stores/LogStore.h"

#include <memory>
#include <string>
#include <utility>
#include <variant>

namespace quillon {

const tallyrig::ReadingReport& LogStore::readingReport() const {
    static const tallyrig::ReadingReport empty;
    return state.reading ? state.reading->report() : empty;
}

void LogStore::readAgainRepaired() {
    const auto repair = readingReport().repair();
    if (!repair) {
        return;
    }
    const Operation operation(*this);
    const OpenedFile& file = *state.reading->file();
    const auto content = readFile(file.path.toStdString());
    const auto* const bytes = std::get_if<std::string>(&content);
    if (bytes == nullptr || !file.holds(*bytes)) {
        state.errorMessage = fileFailure(
            QStringLiteral("Die Datei konnte nicht neu gelesen werden:"), file.path,
            bytes != nullptr ? "Sie ist nicht mehr so, wie sie geöffnet wurde. Das Log bleibt, wie es ist."
                             : std::get<FileError>(content).message);
        return;
    }
    EditHistory::Snapshot before = currentSnapshot();
    tallyrig::LogReader::Log log = tallyrig::LogReader::read(*bytes, *repair);
    state.reading = std::make_shared<const FileReading>(*state.reading, *bytes, log);
    state.document = std::move(log.document);
    state.columns.setNames(ColumnLayout::namesFor(state.document));
    state.isDirty = true;
    clearCheckResults();
    commitUndo(std::move(before));
    changeSelection({});
}

}  // namespace quillon
