// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Keeping/LogKeeper.h"

#include "Quillon/Stores/CompareStore.h"
#include "Quillon/Stores/LogStore.h"

#include <utility>

namespace quillon {

namespace {

bool isEndOfProgram(KeptReason reason) {
    switch (reason) {
        case KeptReason::inHand:
        case KeptReason::windowClosed:
        case KeptReason::sessionEnded:
        case KeptReason::terminated:
        case KeptReason::displayLost:
            return true;
        case KeptReason::newLog:
        case KeptReason::otherLog:
        case KeptReason::overwritten:
            break;
    }
    return false;
}

QString sentence(const FileError& error) {
    return QString::fromStdString(error.message);
}

}  // namespace

LogKeeper::LogKeeper(LogStore& logStore, CompareStore& compareStore, const std::string& folder, Pace pace,
                     QObject* parent)
    : QObject(parent),
      store(logStore),
      compare(compareStore),
      kept(folder),
      log(kept, pace, current(), this),
      left(kept, pace, leftSide(), this),
      right(kept, pace, rightSide(), this) {
    for (const auto signal :
         {&LogStore::documentChanged, &LogStore::fileURLChanged, &LogStore::savedDocumentChanged}) {
        connect(&store, signal, this, [this] { log.follow(current()); });
    }
    for (const auto signal : {&CompareStore::leftFileChanged, &CompareStore::leftFileDirtyChanged,
                              &CompareStore::leftURLChanged}) {
        connect(&compare, signal, this, [this] { left.follow(leftSide()); });
    }
    for (const auto signal :
         {&CompareStore::rightDocChanged, &CompareStore::rightDirtyChanged, &CompareStore::rightURLChanged}) {
        connect(&compare, signal, this, [this] { right.follow(rightSide()); });
    }
    for (const InHandKeeper* const hand : {&log, &left, &right}) {
        connect(hand, &InHandKeeper::letGone, this, &LogKeeper::letGone);
        connect(hand, &InHandKeeper::changed, this, &LogKeeper::entriesChanged);
        connect(hand, &InHandKeeper::failed, this, [this](const QString& why) {
            tellFailure(QStringLiteral("Ungesicherte Änderungen werden nicht aufgehoben: ") + why);
        });
    }
    connect(&store, &LogStore::written, this,
            [this](const QString& path) { noteWritten(path, Origin::log); });
    connect(&compare, &CompareStore::written, this,
            [this](const QString& path) { noteWritten(path, Origin::side); });
    connect(&store, &LogStore::exported, this, [this](const QString& path) {
        if (store.fileURL() != path) {
            noteWritten(path, Origin::exportedText);
        }
    });
    store.beforeReplacing([this](const QString& path) { keepFormerFile(path, Origin::log); });
    compare.beforeReplacing([this](const QString& path) { keepFormerFile(path, Origin::side); });
}

LogKeeper::~LogKeeper() {
    store.beforeReplacing({});
    compare.beforeReplacing({});
}

LogInHand LogKeeper::current() const {
    return {store.document(), store.savedDocument(), store.fileURL()};
}

LogInHand LogKeeper::leftSide() {
    const ComparedFile* const file = compare.leftFile();
    return file == nullptr ? LogInHand{noLog, noLog, std::nullopt}
                           : side(file->document, file->isDirty, file->url, savedLeft);
}

LogInHand LogKeeper::rightSide() {
    return side(compare.rightDoc(), compare.rightDirty(), compare.rightURL(), savedRight);
}

/// A side is as its file has it whenever it says that it is not changed.
LogInHand LogKeeper::side(const tallyrig::ADIFDocument& document, bool isDirty,
                          const std::optional<QString>& path, tallyrig::ADIFDocument& saved) {
    if (!isDirty) {
        saved = document;
    }
    return {document, saved, path};
}

std::vector<KeptEntry> LogKeeper::leftBehind() const {
    std::vector<KeptEntry> found = kept.entries();
    std::erase_if(found, [](const KeptEntry& entry) {
        return entry.note.kind != KeptKind::log || entry.note.isDismissed ||
               !isEndOfProgram(entry.note.reason);
    });
    return found;
}

std::optional<QString> LogKeeper::bringBack(const KeptEntry& entry) {
    log.follow(current());
    auto next = std::make_shared<KeptInHand>(kept);
    const auto taken = next->takeUp(entry);
    if (const auto* const error = std::get_if<FileError>(&taken)) {
        return sentence(*error);
    }
    const auto& document = std::get<tallyrig::ADIFDocument>(taken);
    log.takeUp(std::move(next), document);
    const QString path = QString::fromStdString(entry.note.path);
    // What stands in the file by now is no earlier state of this log.
    writtenFiles.erase(entry.note.path);
    store.bringBack(document, path.isEmpty() ? std::nullopt : std::optional(path), entry.note.timeMs);
    emit entriesChanged();
    return std::nullopt;
}

std::optional<QString> LogKeeper::remove(const KeptEntry& entry) {
    const auto error = kept.remove(entry);
    emit entriesChanged();
    return error ? std::optional(sentence(*error)) : std::nullopt;
}

void LogKeeper::dismiss(const std::vector<KeptEntry>& told) {
    for (const KeptEntry& entry : told) {
        kept.dismiss(entry);
    }
}

void LogKeeper::keepNow() {
    for (InHandKeeper* const hand : {&log, &left, &right}) {
        hand->keepNow();
    }
}

void LogKeeper::end(KeptReason reason) {
    for (InHandKeeper* const hand : {&log, &left, &right}) {
        hand->end(reason);
    }
}

void LogKeeper::tellFailure(const QString& sentence) {
    if (!std::exchange(hasFailed, true)) {
        emit failed(sentence);
    }
}

/// How many QSOs the file holds as far as that is known; otherwise 0.
std::size_t LogKeeper::knownRecordsIn(const QString& path) const {
    if (store.fileURL() == path) {
        return store.savedDocument().records().size();
    }
    if (compare.rightURL() == path) {
        return savedRight.records().size();
    }
    const bool isLeft = compare.leftFile() != nullptr && compare.leftFile()->url == path;
    return isLeft ? savedLeft.records().size() : 0;
}

/// Whether nobody misses what stands in the file at `path` when a log of this origin takes its place: an
/// export can be made again, and what that log itself was written there as is an earlier state of it.
bool LogKeeper::mayGo(const QString& path, const FileState& now, Origin origin) const {
    const auto written = writtenFiles.find(path.toStdString());
    if (written == writtenFiles.end() || written->second.state != now) {
        return false;
    }
    if (written->second.origin == Origin::exportedText) {
        return true;
    }
    const bool isLeft = compare.leftFile() != nullptr && compare.leftFile()->url == path;
    const bool isItsFile =
        origin == Origin::log ? store.fileURL() == path : isLeft || compare.rightURL() == path;
    return isItsFile && written->second.origin == origin;
}

void LogKeeper::keepFormerFile(const QString& path, Origin origin) {
    const std::string file = path.toStdString();
    const FileState now = FileState::of(file);
    if (mayGo(path, now, origin)) {
        return;
    }
    if (const auto error = kept.keepFormerFile(file, knownRecordsIn(path))) {
        tellFailure(QStringLiteral("Was in der Datei stand, wird nicht aufgehoben: ") + sentence(*error));
        return;
    }
    writtenFiles[file] = {now, origin};
    emit entriesChanged();
}

void LogKeeper::noteWritten(const QString& path, Origin origin) {
    const std::string file = path.toStdString();
    writtenFiles[file] = {FileState::of(file), origin};
}

}  // namespace quillon
