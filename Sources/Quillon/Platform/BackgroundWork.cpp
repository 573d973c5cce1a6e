#include "Quillon/Platform/BackgroundWork.h"

#include <utility>

namespace quillon {

BackgroundWork::BackgroundWork(QObject* parent) : QObject(parent) {
    constexpr int tickMs = 100;
    ticking.setInterval(tickMs);
    connect(&ticking, &QTimer::timeout, this, &BackgroundWork::progressed);
}

BackgroundWork::~BackgroundWork() {
    if (thread.joinable()) {
        work->cancel();
        thread.join();
    }
}

void BackgroundWork::start(Task task) {
    waiting = std::move(task);
    if (thread.joinable()) {
        work->cancel();
    } else {
        runWaiting();
        emit runningChanged();
    }
}

void BackgroundWork::cancel() {
    waiting = nullptr;
    if (thread.joinable()) {
        work->cancel();
    }
}

void BackgroundWork::runWaiting() {
    work = std::make_unique<tallyrig::LogWork>();
    thread = std::thread([this, task = std::exchange(waiting, nullptr), &running = *work] {
        TakeOver takeOver;
        std::exception_ptr failure;
        try {
            takeOver = task(running);
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
    const bool isWanted = !work->isCancelled();
    work.reset();
    if (waiting) {
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
