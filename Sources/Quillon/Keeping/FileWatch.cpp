// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Keeping/FileWatch.h"

#include "Quillon/Stores/KnownFile.h"
#include "Quillon/Stores/LogStore.h"

#include <QFileInfo>

#include <string>
#include <utility>

namespace quillon {

FileWatch::FileWatch(LogStore& logStore, QObject* parent) : QObject(parent), store(logStore) {
    constexpr int togetherMs = 300;
    looking.setSingleShot(true);
    looking.setInterval(togetherMs);
    connect(&looking, &QTimer::timeout, this, &FileWatch::look);
    connect(&watcher, &QFileSystemWatcher::fileChanged, &looking, qOverload<>(&QTimer::start));
    connect(&watcher, &QFileSystemWatcher::directoryChanged, &looking, qOverload<>(&QTimer::start));
    connect(&store, &LogStore::savedDocumentChanged, this, &FileWatch::follow);
    connect(&store, &LogStore::fileURLChanged, this, &FileWatch::follow);
    connect(&store, &LogStore::written, this, &FileWatch::follow);
    follow();
}

/// The log has just been read from its file or written to it, unless it was brought back.
void FileWatch::follow() {
    const bool isInFile = store.savedDocument().isSameAs(store.document());
    path = isInFile ? store.fileURL() : std::nullopt;
    known = path ? FileState::of(path->toStdString()) : FileState();
    if (std::exchange(isChanged, false)) {
        emit settled();
    }
    watch();
}

/// The folder as well: a file that is replaced is another one, which nobody watches yet.
void FileWatch::watch() {
    QStringList wanted;
    if (path) {
        wanted = {*path, QFileInfo(*path).path()};
    }
    const QStringList watched = watcher.files() + watcher.directories();
    for (const QString& old : watched) {
        if (!wanted.contains(old)) {
            watcher.removePath(old);
        }
    }
    for (const QString& added : std::as_const(wanted)) {
        if (!watched.contains(added) && QFileInfo::exists(added)) {
            watcher.addPath(added);
        }
    }
}

void FileWatch::look() {
    if (!path) {
        return;
    }
    watch();
    const FileState now = FileState::of(path->toStdString());
    // A file that is gone comes again when the log is saved.
    if (now == known || now == FileState()) {
        return;
    }
    known = now;
    // Many programs write what was there already.
    const bool wasChanged = std::exchange(isChanged, !holdsRecords(*path, store.savedDocument().records()));
    if (isChanged) {
        emit changedByOthers(*path);
    } else if (wasChanged) {
        emit settled();
    }
}

}  // namespace quillon
