// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Keeping/InHandKeeper.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace quillon {

InHandKeeper::InHandKeeper(const KeptLogs& keptLogs, Pace writingPace, LogInHand now, QObject* parent)
    : QObject(parent),
      kept(keptLogs),
      pace(writingPace),
      last(std::move(now)),
      hand(std::make_shared<KeptInHand>(kept)) {
    pool.setMaxThreadCount(1);
    timer.setSingleShot(true);
    connect(&timer, &QTimer::timeout, this, &InHandKeeper::beginKeeping);
}

InHandKeeper::~InHandKeeper() {
    end(KeptReason::windowClosed);
}

std::optional<tallyrig::ADIFDocument> InHandKeeper::unsaved() const {
    return last.mayDiffer() ? std::optional(last.document) : std::nullopt;
}

bool InHandKeeper::isUpToDate() const {
    return last.mayDiffer() ? begun && begun->isSameAs(last.document) : !begun;
}

void InHandKeeper::follow(LogInHand now) {
    if (hasEnded) {
        return;
    }
    const bool hasOtherFile = !now.saved.isSameAs(last.saved);
    if (hasOtherFile && !now.document.isSameAs(last.document)) {
        letGo(now.path || now.mayDiffer() ? KeptReason::otherLog : KeptReason::newLog);
        begun.reset();
    }
    last = std::move(now);
    keepLater();
}

void InHandKeeper::takeUp(std::shared_ptr<KeptInHand> taken, const tallyrig::ADIFDocument& document) {
    letGo(KeptReason::otherLog);
    hand = std::move(taken);
    begun = hand->isKept() ? std::optional(document) : std::nullopt;
    last = {document, {}, std::nullopt};
}

/// The log of `last` makes room for another.
void InHandKeeper::letGo(KeptReason reason) {
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
                tellFailure(*error);
            }
            if (entry) {
                emit letGone(*entry);
            }
            emit changed();
        };
    });
}

void InHandKeeper::keepLater() {
    if (hasEnded || isWriting || timer.isActive() || isUpToDate()) {
        return;
    }
    // What is to be given up goes at once: it costs nothing.
    timer.start(last.mayDiffer() ? std::max<int>(pace.shortestMs, static_cast<int>(rest.remainingTime()))
                                 : 0);
}

void InHandKeeper::beginKeeping() {
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

void InHandKeeper::endKeeping(const std::optional<FileError>& error, std::uint64_t bytes,
                              QDeadlineTimer longestRest) {
    isWriting = false;
    const QDeadlineTimer deserved(static_cast<qint64>(bytes / pace.bytesPerMs));
    rest = std::min(deserved, longestRest);
    if (error) {
        tellFailure(*error);
        begun = tallyrig::ADIFDocument();  // It is tried again.
    }
    keepLater();
}

void InHandKeeper::tellFailure(const FileError& error) {
    emit failed(QString::fromStdString(error.message));
}

std::optional<FileError> InHandKeeper::write(KeptInHand& hand, const LogInHand& log) {
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

void InHandKeeper::runBeside(const std::function<std::function<void()>()>& work) {
    pool.start([this, work] { QMetaObject::invokeMethod(this, work(), Qt::QueuedConnection); });
}

void InHandKeeper::keepNow() {
    timer.stop();
    pool.waitForDone();
    begun = unsaved();
    if (const auto error = write(*hand, last)) {
        tellFailure(*error);
        begun = tallyrig::ADIFDocument();  // It is tried again.
        keepLater();
    }
}

void InHandKeeper::end(KeptReason reason) {
    if (!std::exchange(hasEnded, true)) {
        keepNow();
        hand->letGo(reason);
    }
}

}  // namespace quillon
