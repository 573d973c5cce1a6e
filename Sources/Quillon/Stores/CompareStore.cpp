// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Stores/CompareStore.h"

#include "Quillon/Platform/FileNames.h"
#include "Quillon/Platform/Files/Files.h"
#include "Quillon/Stores/FileFailure.h"
#include "Quillon/Stores/LogText.h"
#include "Quillon/Stores/ValidationSettings.h"
#include "Tallyrig/Analysis/ADIFComparator.h"
#include "Tallyrig/Formats/LogReader.h"
#include "Tallyrig/Log/ADIFParser.h"
#include "Tallyrig/Log/ADIFWriter.h"
#include "Tallyrig/Log/ProgramName.h"
#include "Tallyrig/Text/Text.h"
#include "Tallyrig/Validation/ADIFSpec317.h"

#include <QFileInfo>
#include <QPointer>

#include <utility>
#include <variant>

namespace quillon {

namespace text = tallyrig::text;

using tallyrig::ADIFDocument;

namespace {

/// What the files of a comparison name as the version of the program, whatever that is.
constexpr const char* writtenProgramVersion = "0.3.1";

tallyrig::ADIFWriter writerFor(const Settings& settings) {
    const std::string wanted = settings.string(setting::adifVersion).toStdString();
    const std::string_view version = text::trimmedOfBlanks(wanted);
    return {std::string(tallyrig::programName), writtenProgramVersion,
            std::string(version.empty() ? tallyrig::ADIFSpec::version : version),
            settings.boolean(setting::writeHeaderOnSave, true)};
}

/// A property of the left file, of which there may be none.
template <auto member>
auto leftProperty(const std::optional<ComparedFile>& left) {
    return left ? std::optional((*left).*member) : std::nullopt;
}

/// An equal log has other ids, by which the cells on screen know their records.
void keepIfEqual(ComparedFile& file, const ADIFDocument& present) {
    if (file.document == present) {
        file.document = present;
    }
}

/// The file at `fullPath`, of which `parse` makes a log; absent if it cannot be read.
template <typename Parse>
std::optional<ComparedFile> fileAt(const QString& fullPath, const Parse& parse) {
    // First, so that what others write meanwhile is noticed.
    const KnownFile known(fullPath);
    const auto content = readFile(fullPath.toStdString());
    const auto* const bytes = std::get_if<std::string>(&content);
    return bytes == nullptr ? std::nullopt
                            : std::optional(ComparedFile{parse(*bytes), QFileInfo(fullPath).fileName(),
                                                         fullPath, false, known});
}

}  // namespace

std::span<const CompareStore::Changes::Property> CompareStore::observedProperties() {
    static const Changes::Property properties[] = {
        {[](const Observed& before, const Observed& now) {
             return !(before.right.document == now.right.document);
         },
         &CompareStore::rightDocChanged},
        {[](const Observed& before, const Observed& now) { return before.right.name != now.right.name; },
         &CompareStore::rightNameChanged},
        {[](const Observed& before, const Observed& now) { return before.right.url != now.right.url; },
         &CompareStore::rightURLChanged},
        {[](const Observed& before, const Observed& now) {
             return before.right.isDirty != now.right.isDirty;
         },
         &CompareStore::rightDirtyChanged},
        {[](const Observed& before, const Observed& now) {
             return !(leftProperty<&ComparedFile::document>(before.left) ==
                      leftProperty<&ComparedFile::document>(now.left));
         },
         &CompareStore::leftFileChanged},
        {[](const Observed& before, const Observed& now) {
             return leftProperty<&ComparedFile::name>(before.left) !=
                    leftProperty<&ComparedFile::name>(now.left);
         },
         &CompareStore::leftFileNameChanged},
        {[](const Observed& before, const Observed& now) {
             return leftProperty<&ComparedFile::url>(before.left) !=
                    leftProperty<&ComparedFile::url>(now.left);
         },
         &CompareStore::leftURLChanged},
        {[](const Observed& before, const Observed& now) {
             return leftProperty<&ComparedFile::isDirty>(before.left).value_or(false) !=
                    leftProperty<&ComparedFile::isDirty>(now.left).value_or(false);
         },
         &CompareStore::leftFileDirtyChanged},
        {Changes::differ<&Observed::errorMessage>, &CompareStore::errorMessageChanged},
    };
    return properties;
}

CompareStore::CompareStore(const Settings& userSettings, Panels& userPanels, QObject* parent)
    : QObject(parent), settings(userSettings), panels(userPanels) {
    state.right.name = QStringLiteral("—");
}

const QList<FileType>& CompareStore::adifContentTypes() {
    static const QList<FileType> types = {
        {QStringLiteral("ADIF-Dateien"), {QStringLiteral("adi")}},
        {QStringLiteral("ADIF-Dateien"), {QStringLiteral("adif")}},
        {QStringLiteral("Textdateien"), {QStringLiteral("txt")}},
    };
    return types;
}

void CompareStore::setRight(ComparedFile file) {
    const ComparedFile before = state.right;
    {
        const Changes::Operation operation(changes);
        keepIfEqual(file, state.right.document);
        state.right = std::move(file);
    }
    if (before.isDirty) {
        emit editsLost(before.name);
    }
}

void CompareStore::setLeftFile(std::optional<ComparedFile> file) {
    const std::optional<ComparedFile> before = state.left;
    {
        const Changes::Operation operation(changes);
        if (file && state.left) {
            keepIfEqual(*file, state.left->document);
        }
        state.left = std::move(file);
    }
    if (before && before->isDirty) {
        emit editsLost(before->name);
    }
}

const ADIFDocument& CompareStore::leftDoc(const ADIFDocument& currentLog) const {
    return state.left ? state.left->document : currentLog;
}

tallyrig::ADIFComparison CompareStore::comparison(const ADIFDocument& currentLog) const {
    return tallyrig::ADIFComparator(state.keyFields).compare(leftDoc(currentLog), state.right.document);
}

void CompareStore::loadRight() {
    loadWithPanel(Side::right);
}

void CompareStore::loadLeftFile() {
    loadWithPanel(Side::left);
}

void CompareStore::loadWithPanel(Side side) {
    if (const auto path = panels.fileToOpen(PanelUse::comparedSide, adifContentTypes())) {
        load(side, *path);
    }
}

void CompareStore::load(Side side, const QString& path) {
    if (auto file = fileAt(absolutePath(path), &tallyrig::ADIFParser::parse)) {
        place(side, *std::move(file));
    }
}

void CompareStore::loadInItsFormat(Side side, const QString& path) {
    auto format = tallyrig::LogFormat::adif;
    auto file = fileAt(absolutePath(path), [&format](std::string_view bytes) {
        tallyrig::LogReader::Log log = tallyrig::LogReader::readWithoutReport(bytes);
        format = log.format;
        return std::move(log.document);
    });
    if (file) {
        if (format != tallyrig::LogFormat::adif) {
            file->url.reset();
        }
        place(side, *std::move(file));
    }
}

void CompareStore::place(Side side, ComparedFile file) {
    if (side == Side::right) {
        setRight(std::move(file));
    } else {
        setLeftFile(std::move(file));
    }
}

void CompareStore::saveRight() {
    save(Side::right, state.right.name);
}

void CompareStore::saveLeftFile() {
    const bool hasName = state.left && !state.left->name.isEmpty();
    save(Side::left, hasName ? state.left->name : QStringLiteral("Logbuch.adi"));
}

void CompareStore::save(Side side, const QString& proposedName) {
    if (fileOf(side) == nullptr) {
        return;
    }
    std::optional<QString> path = fileOf(side)->url;
    if (!path) {
        path = panels.fileToSave(PanelUse::comparedSide, proposedName, adifContentTypes());
    }
    if (!path) {
        return;
    }
    const QString fullPath = absolutePath(*path);
    // Sides know no other format.
    const LogText content =
        textToSave(fileOf(side)->document, writerFor(settings), nullptr, fullPath, panels);
    if (content.answer != LossAnswer::saveAnyway) {
        return;
    }
    if (replaceWith(content.text, fullPath, *fileOf(side))) {
        emit written(fullPath);
    }
}

bool CompareStore::replaceWith(const std::string& content, const QString& path, ComparedFile& file) {
    const Changes::Operation operation(changes);
    if (keepFormer) {
        keepFormer(path);
    }
    bool isOther = false;
    const auto isWanted = [&] {
        isOther = file.url == path && file.known && !file.known->isUntouched();
        return !isOther;
    };
    if (const auto error = replaceFile(path.toStdString(), content, Lasting::atOnce, isWanted)) {
        state.errorMessage =
            fileFailure(QStringLiteral("Speichern fehlgeschlagen:"), path,
                        error->message + (isOther ? " Noch einmal speichern ersetzt sie." : ""));
        if (isOther) {
            file.known.reset();
        }
        return false;
    }
    file.url = path;
    file.known = KnownFile(path);
    file.name = QFileInfo(path).fileName();
    file.isDirty = false;
    return true;
}

void CompareStore::setErrorMessage(std::optional<QString> message) {
    const Changes::Operation operation(changes);
    state.errorMessage = std::move(message);
}

TextBinding CompareStore::rightBinding(tallyrig::UUID recordID, const std::string& column) {
    return binding(Side::right, recordID, column);
}

TextBinding CompareStore::leftBinding(tallyrig::UUID recordID, const std::string& column) {
    return binding(Side::left, recordID, column);
}

TextBinding CompareStore::binding(Side side, tallyrig::UUID recordID, const std::string& column) {
    const QPointer<CompareStore> store(this);
    return {[store, side, recordID, column] {
                const ComparedFile* const file = store ? store->fileOf(side) : nullptr;
                const auto index =
                    file != nullptr ? file->document.records().indexOf(recordID) : std::nullopt;
                return std::string(index ? file->document.records()[*index].valueOrEmpty(column) : "");
            },
            [store, side, recordID, column](std::string_view value) {
                if (store) {
                    store->setCell(side, recordID, column, value);
                }
            }};
}

void CompareStore::setCell(Side side, tallyrig::UUID recordID, const std::string& column,
                           std::string_view value) {
    ComparedFile* const file = fileOf(side);
    const auto index = file != nullptr ? file->document.records().indexOf(recordID) : std::nullopt;
    if (!index || text::equal(file->document.records()[*index].valueOrEmpty(column), value)) {
        return;
    }
    const Changes::Operation operation(changes);
    file->document.records().modify(*index, [&](tallyrig::ADIFRecord& record) {
        record.set(column, value.empty() ? std::nullopt : std::optional(value));
    });
    file->isDirty = true;
}

/// Null while the open log stands on the left.
ComparedFile* CompareStore::fileOf(Side side) {
    if (side == Side::right) {
        return &state.right;
    }
    return state.left ? &*state.left : nullptr;
}

}  // namespace quillon
