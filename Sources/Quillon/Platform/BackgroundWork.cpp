// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/BackgroundWork.h"

#include <utility>

namespace quillon {

BackgroundWork::BackgroundWork(QObject* parent) : QObject(parent) {
    constexpr int tickMs = 100;
    ticking.setInterval(tickMs);
    connect(&ticking, &QTimer::timeout, this, &BackgroundWork::progressed);
}

BackgroundWork::~BackgroundWork() {
    cancelRunning();
    if (thread.joinable()) {
        thread.join();
    }
}

void BackgroundWork::cancel() {
    waiting = {};
    cancelRunning();
}

void BackgroundWork::begin(Job job) {
    waiting = std::move(job);
    if (thread.joinable()) {
        cancelRunning();
    } else {
        runWaiting();
        emit runningChanged();
    }
}

void BackgroundWork::cancelRunning() {
    if (thread.joinable()) {
        running.cancel();
        isCancelled = true;
    }
}

void BackgroundWork::runWaiting() {
    running = std::exchange(waiting, {});
    isCancelled = false;
    thread = std::thread([this, run = running.run] {
        TakeOver takeOver;
        std::exception_ptr failure;
        try {
            takeOver = run();
        } catch (...) {
            failure = std::current_exception();
        }
        QMetaObject::invokeMethod(
            this, [this, takeOver, failure] { finish(takeOver, failure); }, Qt::QueuedConnection);
    });
    ticking.start();
}

void BackgroundWork::finish(const TakeOver& takeOver, const std::exception_ptr& failure) {
    thread.join();
    const bool isWanted = !isCancelled;
    running = {};
    if (waiting.run) {
        runWaiting();
    } else {
        ticking.stop();
        emit runningChanged();
    }
    if (isWanted && failure) {
        std::rethrow_exception(failure);
    }
    if (isWanted && takeOver) {
        takeOver();
    }
}

}  // namespace quillon
