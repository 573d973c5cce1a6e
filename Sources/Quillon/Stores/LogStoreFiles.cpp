#include "Quillon/Platform/Files.h"
#include "Quillon/Stores/LogStore.h"
#include "Quillon/Stores/LogStoreOperation.h"
#include "Quillon/Stores/ValidationSettings.h"
#include "Tallyrig/Log/ADIFParser.h"
#include "Tallyrig/Log/ADIFWriter.h"
#include "Tallyrig/Log/LogFormat.h"
#include "Tallyrig/Text/Text.h"

#include <QFileInfo>

#include <variant>

namespace quillon {

namespace {

using tallyrig::ADIFDocument;
using tallyrig::LogFormat;

ADIFDocument parsed(LogFormat format, std::string_view bytes) {
    switch (format) {
        case LogFormat::adif:
        case LogFormat::adx:
        case LogFormat::cabrillo:
        case LogFormat::edi:
            break;
    }
    return tallyrig::ADIFParser::parse(bytes);
}

/// The writer as the user set it up.
tallyrig::ADIFWriter writerFor(const Settings& settings) {
    const std::string version = settings.string(setting::adifVersion).toStdString();
    const bool isBlank = tallyrig::text::trimmedOfBlanks(version).empty();
    return {.programID = "Quillon",
            .programVersion = appVersion().toStdString(),
            .adifVersion = isBlank ? "3.1.7" : version,
            .writeHeader = settings.boolean(setting::writeHeaderOnSave, true)};
}

QString failure(const QString& what, const FileError& why) {
    return what + QLatin1Char('\n') + QString::fromStdString(why.message);
}

}  // namespace

QString appVersion() {
    const QString version = QStringLiteral(QUILLON_VERSION);
    return version.isEmpty() ? QStringLiteral("dev") : version;
}

const QList<FileType>& adifContentTypes() {
    static const QList<FileType> types = {
        {QStringLiteral("ADIF-Dateien"), {QStringLiteral("adi")}},
        {QStringLiteral("ADIF-Dateien"), {QStringLiteral("adif")}},
        {QStringLiteral("ADX-Dateien"), {QStringLiteral("adx")}},
        {QStringLiteral("EDI-Dateien"), {QStringLiteral("edi")}},
        {QStringLiteral("Cabrillo-Dateien"), {QStringLiteral("cbr")}},
        {QStringLiteral("Cabrillo-Dateien"), {QStringLiteral("cabrillo")}},
        {QStringLiteral("Log-Dateien"), {QStringLiteral("log")}},
        {QStringLiteral("Textdateien"), {QStringLiteral("txt")}},
    };
    return types;
}

QString LogStore::windowTitleFor(const std::optional<QString>& fileURL, bool isDirty) {
    const QString name = fileURL ? QFileInfo(*fileURL).fileName() : QStringLiteral("Unbenanntes Logbuch");
    return isDirty ? name + QStringLiteral(" — bearbeitet") : name;
}

QString LogStore::windowTitle() const {
    return windowTitleFor(state.fileURL, state.isDirty);
}

void LogStore::showLog(ADIFDocument document, std::optional<QString> path) {
    state.document = std::move(document);
    state.fileURL = std::move(path);
    state.isDirty = false;
    changeSelection({});
    state.columns = columnsFor(state.document);
    clearCheckResults();
    resetHistory();
}

void LogStore::newLog() {
    const Operation operation(*this);
    showLog(ADIFDocument(), std::nullopt);
}

void LogStore::open(const QString& path) {
    const Operation operation(*this);
    const QString absolutePath = QFileInfo(path).absoluteFilePath();
    const auto content = readFile(absolutePath.toStdString());
    if (const auto* error = std::get_if<FileError>(&content)) {
        state.errorMessage = failure(QStringLiteral("Datei konnte nicht geöffnet werden:"), *error);
        return;
    }
    const auto& bytes = std::get<std::string>(content);
    showLog(parsed(tallyrig::LogFormatDetector::detect(bytes), bytes), absolutePath);
    autoFitColumns();
}

void LogStore::openWithPanel() {
    if (const auto path = panels.fileToOpen(adifContentTypes())) {
        open(*path);
    }
}

void LogStore::openFromCommandLineIfNeeded(const QStringList& arguments) {
    if (state.fileURL) {
        return;
    }
    for (qsizetype index = 0; index < arguments.size(); ++index) {
        // What follows the word is the folder of a cross-check.
        const bool belongsToOther = index > 0 && arguments[index - 1] == QLatin1String("--crosscheck");
        if (!belongsToOther && QFileInfo::exists(arguments[index])) {
            open(arguments[index]);
            return;
        }
    }
}

void LogStore::save() {
    if (state.fileURL) {
        write(QString(*state.fileURL));
    } else {
        saveWithPanel();
    }
}

void LogStore::saveWithPanel() {
    const QString proposedName =
        state.fileURL ? QFileInfo(*state.fileURL).fileName() : QStringLiteral("Logbuch.adi");
    if (const auto path = panels.fileToSave(proposedName, adifContentTypes())) {
        write(*path);
    }
}

void LogStore::write(const QString& path) {
    const Operation operation(*this);
    const QString absolutePath = QFileInfo(path).absoluteFilePath();
    const std::string content = writerFor(settings).write(state.document);
    if (const auto error = replaceFile(absolutePath.toStdString(), content)) {
        state.errorMessage = failure(QStringLiteral("Speichern fehlgeschlagen:"), *error);
        return;
    }
    state.fileURL = absolutePath;
    state.isDirty = false;
}

}  // namespace quillon
