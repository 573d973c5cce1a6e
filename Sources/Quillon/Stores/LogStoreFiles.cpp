// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Catalogue/LogWriters.h"
#include "Quillon/Platform/FileNames.h"
#include "Quillon/Platform/Files/Files.h"
#include "Quillon/Platform/LogFileTypes.h"
#include "Quillon/Stores/FileFailure.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Stores/LogText.h"
#include "Quillon/Stores/ValidationSettings.h"
#include "Tallyrig/Formats/CabrilloWriter.h"
#include "Tallyrig/Formats/EDIWriter.h"
#include "Tallyrig/Formats/LogReader.h"
#include "Tallyrig/Text/VisibleText.h"

#include <QFileInfo>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <variant>

namespace quillon {

namespace {

using tallyrig::ADIFDocument;

/// The writer of the format as the user set it up.
LogWriter writerFor(tallyrig::LogFormat format, const Settings& settings) {
    const std::string version = settings.string(setting::adifVersion).toStdString();
    const bool writeHeader = settings.boolean(setting::writeHeaderOnSave, true);
    if (format == tallyrig::LogFormat::adx) {
        return adxWriter(version, writeHeader);
    }
    return adifWriter(version, writeHeader);
}

/// Whether an argument that names nothing may have been meant as the path of a log: behind "--" whatever it
/// begins with.
bool mayBePath(const QString& argument, bool isBehindMark) {
    return !argument.isEmpty() && (isBehindMark || !argument.startsWith(QLatin1Char('-')));
}

QString notOpenedMessage(const QStringList& paths) {
    constexpr qsizetype mostNamed = 10;
    QString message = QStringLiteral("Es ist immer nur ein Log offen. Nicht geöffnet:");
    for (const QString& path : paths.first(std::min(paths.size(), mostNamed))) {
        message +=
            QLatin1Char('\n') + QString::fromStdString(tallyrig::text::visibleText(path.toStdString()));
    }
    if (paths.size() > mostNamed) {
        message += QStringLiteral("\nund %1 weitere").arg(paths.size() - mostNamed);
    }
    return message;
}

}  // namespace

QString LogStore::Observed::windowTitle() const {
    const QString name = fileURL ? QFileInfo(*fileURL).fileName() : QStringLiteral("Unbenanntes Logbuch");
    return isDirty ? name + QStringLiteral(" — bearbeitet") : name;
}

void LogStore::showLog(ADIFDocument document, std::optional<QString> path,
                       std::shared_ptr<const FileReading> reading) {
    state.document = std::move(document);
    state.fileURL = std::move(path);
    state.isDirty = false;
    state.savedDocument = state.document;
    knownFile.reset();
    fileConcern.reset();
    state.reading = std::move(reading);
    state.columns.setNames(ColumnLayout::namesFor(state.document));
    clearCheckResults();
}

void LogStore::forgetEdits() {
    changeSelection({});
    history.clear();
    noteHistory();
}

void LogStore::newLog() {
    const Operation operation(*this);
    showLog(ADIFDocument(), std::nullopt);
    forgetEdits();
}

void LogStore::open(const QString& path) {
    const Operation operation(*this);
    const QString fullPath = absolutePath(path);
    const KnownFile file(fullPath);
    const auto content = readFile(fullPath.toStdString());
    if (const auto* error = std::get_if<FileError>(&content)) {
        // What is no UTF-8 in a name has become this character, and the file is not found by it.
        const bool isNameBroken = fullPath.contains(QChar::ReplacementCharacter);
        state.errorMessage =
            fileFailure(QStringLiteral("Datei konnte nicht geöffnet werden:"), fullPath,
                        isNameBroken ? "Der Name ist nicht in UTF-8 geschrieben." : error->message);
        return;
    }
    const std::string& bytes = std::get<std::string>(content);
    tallyrig::LogReader::Log log = tallyrig::LogReader::read(bytes);
    const auto concern = concernAboutSaving(log, bytes, fullPath);
    auto reading = log.report.isEmpty() ? nullptr : std::make_shared<const FileReading>(fullPath, bytes, log);
    showLog(std::move(log.document), fullPath, std::move(reading));
    knownFile = file;
    fileConcern = concern;
    autoFitColumns();
    forgetEdits();
}

void LogStore::bringBack(ADIFDocument document, std::optional<QString> path, std::int64_t keptAtMs) {
    const Operation operation(*this);
    showLog(std::move(document), std::move(path));
    if (state.fileURL) {
        knownFile = KnownFile::asOf(keptAtMs, *state.fileURL);
    }
    state.isDirty = true;
    state.savedDocument = ADIFDocument();
    autoFitColumns();
    forgetEdits();
}

std::optional<SavingConcern> LogStore::savingConcern() const {
    const bool isRepaired = readingReport().placeCount(tallyrig::ReadingSeverity::error) == 0;
    return fileConcern == SavingConcern::notWhole && isRepaired ? std::nullopt : fileConcern;
}

void LogStore::openWithPanel() {
    if (const auto path = panels.fileToOpen(PanelUse::openLog, adifContentTypes())) {
        open(*path);
    }
}

void LogStore::openFromCommandLineIfNeeded(const QStringList& arguments) {
    if (state.fileURL) {
        return;
    }
    const Operation operation(*this);
    QStringList paths;  ///< And what is none, but looks like one.
    qsizetype first = -1;
    const qsizetype mark = arguments.indexOf(QLatin1String("--"));
    for (qsizetype index = 0; index < arguments.size(); ++index) {
        // What follows the word is the folder of a cross-check.
        if (index > 0 && arguments[index - 1] == QLatin1String("--crosscheck")) {
            continue;
        }
        const bool isThere = QFileInfo::exists(absolutePath(arguments[index]));
        if (isThere && first < 0) {
            first = paths.size();
        }
        if (isThere || mayBePath(arguments[index], mark >= 0 && index > mark)) {
            paths.append(arguments[index]);
        }
    }
    if (paths.isEmpty()) {
        return;
    }
    open(paths.takeAt(std::max<qsizetype>(first, 0)));
    if (!state.errorMessage && !paths.isEmpty()) {
        state.errorMessage = notOpenedMessage(paths);
    }
}

void LogStore::save() {
    if (state.fileURL) {
        write(QString(*state.fileURL), Changed::leave);
    } else {
        saveWithPanel();
    }
}

void LogStore::saveReplacing() {
    if (state.fileURL) {
        write(QString(*state.fileURL));
    } else {
        saveWithPanel();
    }
}

void LogStore::saveWithPanel() {
    const QString proposedName =
        state.fileURL ? QFileInfo(*state.fileURL).fileName() : QStringLiteral("Logbuch.adi");
    if (const auto path = panels.fileToSave(PanelUse::saveLog, proposedName, adifContentTypes())) {
        write(*path);
    }
}

bool LogStore::write(const QString& path, Changed changed) {
    const QString fullPath = absolutePath(path);
    // Before anything is read back of a million QSOs.
    if (changed == Changed::leave && knownFile && !knownFile->isStill(fullPath, state.savedDocument)) {
        emit changedOnDisk(fullPath);
        return false;
    }
    const tallyrig::LogFormat format = formatWrittenTo(fullPath);
    const bool isADX = format == tallyrig::LogFormat::adx;
    const LogWriter other = writerFor(isADX ? tallyrig::LogFormat::adif : tallyrig::LogFormat::adx, settings);
    const LogText content = textToSave(state.document, writerFor(format, settings), &other, fullPath, panels);
    switch (content.answer) {
        case LossAnswer::cancel:
            return false;
        case LossAnswer::otherFormat:
            isADX ? saveAsADI() : saveAsADX();
            return false;
        case LossAnswer::saveAnyway:
            break;
    }
    {
        const Operation operation(*this);
        if (!replaceWith(content.text, fullPath, changed)) {
            return false;
        }
        if (!content.isWhole) {
            // What will not come back is still to be kept when the log is dropped.
            state.savedDocument = tallyrig::LogReader::readWithoutReport(content.text).document;
        }
    }
    emit written(fullPath);
    return true;
}

bool LogStore::replaceWith(const std::string& content, const QString& path, Changed changed) {
    const Operation operation(*this);
    announceReplacing(path);
    bool isOther = false;
    const auto isWanted = [&] {
        isOther = changed == Changed::leave && knownFile && !knownFile->isUntouched();
        return !isOther;
    };
    const auto error = replaceFile(path.toStdString(), content, Lasting::atOnce, isWanted);
    if (isOther) {
        emit changedOnDisk(path);
        return false;
    }
    if (error) {
        state.errorMessage = fileFailure(QStringLiteral("Speichern fehlgeschlagen:"), path,
                                         error->message + " „Speichern unter…“ wählt einen anderen Ort.");
        return false;
    }
    knownFile = KnownFile(path);
    fileConcern.reset();
    state.fileURL = path;
    state.isDirty = false;
    state.savedDocument = state.document;
    return true;
}

void LogStore::announceReplacing(const QString& path) const {
    if (keepFormer) {
        keepFormer(path);
    }
}

void LogStore::noteExportTo(const QString& path) {
    if (!state.fileURL || QFileInfo(*state.fileURL) != QFileInfo(path)) {
        return;
    }
    {
        const Operation operation(*this);
        state.savedDocument = ADIFDocument();
    }
    emit changedOnDisk(QString(*state.fileURL));
}

QString LogStore::proposedName(const QString& extension) const {
    return (state.fileURL ? nameWithoutExtension(*state.fileURL) : QStringLiteral("Logbuch")) +
           QLatin1Char('.') + extension;
}

void LogStore::exportLog(const QString& extension, const QList<FileType>& types) {
    const auto path = panels.fileToSave(PanelUse::saveLog, proposedName(extension), types);
    if (path && write(*path)) {
        emit exported(*state.fileURL);
    }
}

void LogStore::saveAsADI() {
    exportLog(QStringLiteral("adi"), adifContentTypes());
}

void LogStore::saveAsADX() {
    const QString extension = QStringLiteral("adx");
    exportLog(extension, {{QStringLiteral("ADX-Dateien"), {extension}},
                          {QStringLiteral("XML-Dateien"), {QStringLiteral("xml")}}});
}

void LogStore::exportText(const std::string& text, const FileType& type, const QString& failurePrefix) {
    const auto path = panels.fileToSave(PanelUse::exportLog, proposedName(type.extensions.first()),
                                        {type, {QStringLiteral("Textdateien"), {QStringLiteral("txt")}}});
    if (!path) {
        return;
    }
    const QString fullPath = absolutePath(*path);
    announceReplacing(fullPath);
    if (const auto error = replaceFile(fullPath.toStdString(), text)) {
        setErrorMessage(fileFailure(failurePrefix, fullPath, error->message));
        return;
    }
    noteExportTo(fullPath);
    emit exported(fullPath);
}

void LogStore::exportCabrillo(const tallyrig::CabrilloHeader& header) {
    exportText(tallyrig::CabrilloWriter{header}.write(state.document),
               {QStringLiteral("Cabrillo-Dateien"), {QStringLiteral("cbr")}},
               QStringLiteral("Cabrillo-Export fehlgeschlagen:"));
}

void LogStore::exportEDI(const tallyrig::EDIHeader& header) {
    exportText(tallyrig::EDIWriter{header}.write(state.document),
               {QStringLiteral("EDI-Dateien"), {QStringLiteral("edi")}},
               QStringLiteral("EDI-Export fehlgeschlagen:"));
}

void LogStore::setShowCabrilloExport(bool show) {
    const Operation operation(*this);
    state.showCabrilloExport = show;
}

void LogStore::setShowEDIExport(bool show) {
    const Operation operation(*this);
    state.showEDIExport = show;
}

}  // namespace quillon
