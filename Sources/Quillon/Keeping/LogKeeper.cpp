#include "Quillon/Keeping/LogKeeper.h"

#include "Quillon/Stores/LogStore.h"

#include <sys/stat.h>

#include <algorithm>
#include <exception>
#include <utility>

namespace quillon {

namespace {

constexpr auto notKept = "Ungesicherte Änderungen werden nicht aufgehoben:";

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

LogKeeper::FileState LogKeeper::FileState::of(const std::string& path) {
    struct stat status = {};
    if (::stat(path.c_str(), &status) != 0) {
        return {};
    }
    constexpr std::int64_t secondNs = 1'000'000'000;
    return {status.st_dev, status.st_ino, static_cast<std::uint64_t>(status.st_size),
            status.st_mtim.tv_sec * secondNs + status.st_mtim.tv_nsec};
}

LogKeeper::LogKeeper(LogStore& logStore, const std::string& folder, Pace writingPace, QObject* parent)
    : QObject(parent),
      store(logStore),
      kept(folder),
      pace(writingPace),
      last(current()),
      hand(std::make_shared<KeptInHand>(kept)) {
    pool.setMaxThreadCount(1);
    timer.setSingleShot(true);
    connect(&timer, &QTimer::timeout, this, &LogKeeper::beginKeeping);
    connect(&store, &LogStore::documentChanged, this, &LogKeeper::follow);
    connect(&store, &LogStore::fileURLChanged, this, &LogKeeper::follow);
    connect(&store, &LogStore::savedDocumentChanged, this, &LogKeeper::follow);
    connect(&store, &LogStore::exported, this, &LogKeeper::noteSaved);
    store.beforeReplacing([this](const QString& path) { keepFormerFile(path); });
}

LogKeeper::~LogKeeper() {
    store.beforeReplacing({});
    end(KeptReason::windowClosed);
    pool.waitForDone();
}

LogKeeper::Log LogKeeper::current() const {
    return {store.document(), store.savedDocument(), store.fileURL()};
}

std::optional<tallyrig::ADIFDocument> LogKeeper::unsaved() const {
    return last.mayDiffer() ? std::optional(last.document) : std::nullopt;
}

bool LogKeeper::isUpToDate() const {
    return last.mayDiffer() ? begun && begun->isSameAs(last.document) : !begun;
}

void LogKeeper::follow() {
    if (hasEnded) {
        return;
    }
    Log now = current();
    const bool hasOtherFile = !now.saved.isSameAs(last.saved);
    if (hasOtherFile && !now.document.isSameAs(last.document)) {
        letGo(now.path || now.mayDiffer() ? KeptReason::otherLog : KeptReason::newLog);
        begun.reset();
    } else if (hasOtherFile && now.path && !now.mayDiffer()) {
        noteSaved(*now.path);
    }
    last = std::move(now);
    keepLater();
}

/// The log of `last` makes room for another.
void LogKeeper::letGo(KeptReason reason) {
    timer.stop();
    const auto old = std::exchange(hand, std::make_shared<KeptInHand>(kept));
    if (!last.mayDiffer() && !begun) {
        return;
    }
    runBeside([this, old, log = last, reason]() -> std::function<void()> {
        const auto error = write(*old, log);
        const auto entry = old->letGo(reason);
        return [this, error, entry] {
            if (error) {
                tellFailure(notKept, error->message);
            }
            if (entry) {
                emit letGone(*entry);
            }
            emit entriesChanged();
        };
    });
}

void LogKeeper::keepLater() {
    if (isWriting || timer.isActive() || isUpToDate()) {
        return;
    }
    // What is to be given up goes at once: it costs nothing.
    timer.start(last.mayDiffer() ? std::max<int>(pace.shortestMs, static_cast<int>(rest.remainingTime()))
                                 : 0);
}

void LogKeeper::beginKeeping() {
    isWriting = true;
    begun = unsaved();
    const QDeadlineTimer longest(pace.longestMs);
    runBeside([this, inHand = hand, log = last, longest]() -> std::function<void()> {
        const std::uint64_t before = inHand->bytesWritten();
        const auto error = write(*inHand, log);
        const std::uint64_t bytes = inHand->bytesWritten() - before;
        return [this, error, bytes, longest] { endKeeping(error, bytes, longest); };
    });
}

void LogKeeper::endKeeping(const std::optional<FileError>& error, std::uint64_t bytes,
                           QDeadlineTimer longestRest) {
    isWriting = false;
    const QDeadlineTimer deserved(static_cast<qint64>(bytes / pace.bytesPerMs));
    rest = std::min(deserved, longestRest);
    if (error) {
        tellFailure(notKept, error->message);
        begun = tallyrig::ADIFDocument();  // It is tried again.
    }
    keepLater();
}

void LogKeeper::tellFailure(const char* what, const std::string& why) {
    if (!std::exchange(hasFailed, true)) {
        emit failed(QString::fromUtf8(what) + QLatin1Char(' ') + QString::fromStdString(why));
    }
}

std::optional<FileError> LogKeeper::write(KeptInHand& hand, const Log& log) {
    try {
        if (log.mayDiffer() && log.document != log.saved) {
            return hand.keep(log.document, log.pathText());
        }
        hand.discard();
        return std::nullopt;
    } catch (const std::exception&) {
        // Memory is all that can be wanting here.
        return FileError{"Der Arbeitsspeicher reicht nicht."};
    }
}

void LogKeeper::runBeside(const std::function<std::function<void()>()>& work) {
    pool.start([this, work] { QMetaObject::invokeMethod(this, work(), Qt::QueuedConnection); });
}

std::vector<KeptEntry> LogKeeper::leftBehind() const {
    std::vector<KeptEntry> left = kept.entries();
    std::erase_if(left, [](const KeptEntry& entry) {
        return entry.note.kind != KeptKind::log || entry.note.isDismissed ||
               !isEndOfProgram(entry.note.reason);
    });
    return left;
}

std::optional<QString> LogKeeper::bringBack(const KeptEntry& entry) {
    follow();
    const auto next = std::make_shared<KeptInHand>(kept);
    auto taken = next->takeUp(entry);
    if (const auto* const error = std::get_if<FileError>(&taken)) {
        return sentence(*error);
    }
    letGo(KeptReason::otherLog);
    hand = next;
    const auto& document = std::get<tallyrig::ADIFDocument>(taken);
    last = {document, {}, std::nullopt};
    begun = hand->isKept() ? std::optional(document) : std::nullopt;
    const QString path = QString::fromStdString(entry.note.path);
    store.bringBack(document, path.isEmpty() ? std::nullopt : std::optional(path));
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
    follow();
    timer.stop();
    pool.waitForDone();
    begun = unsaved();
    if (const auto error = write(*hand, last)) {
        tellFailure(notKept, error->message);
    }
}

void LogKeeper::end(KeptReason reason) {
    if (hasEnded) {
        return;
    }
    keepNow();
    hand->letGo(reason);
    hasEnded = true;
}

void LogKeeper::keepFormerFile(const QString& path) {
    const std::string file = path.toStdString();
    const FileState now = FileState::of(file);
    const auto known = savedFiles.find(file);
    if (known != savedFiles.end() && known->second == now) {
        return;
    }
    const bool isOfLog = store.fileURL() == path;
    if (const auto error = kept.keepFormerFile(file, isOfLog ? last.saved.records().size() : 0)) {
        tellFailure("Was in der Datei stand, wird nicht aufgehoben:", error->message);
    }
    savedFiles[file] = now;
    emit entriesChanged();
}

void LogKeeper::noteSaved(const QString& path) {
    const std::string file = path.toStdString();
    savedFiles[file] = FileState::of(file);
}

}  // namespace quillon
