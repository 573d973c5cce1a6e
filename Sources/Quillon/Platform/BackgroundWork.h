#pragma once

#include "Tallyrig/CrossCheck/LogWork.h"

#include <QObject>
#include <QTimer>

#include <exception>
#include <functional>
#include <memory>
#include <thread>

namespace quillon {

/// Runs what takes long beside the main thread, one task at a time, and takes its result over on the main
/// thread if it is still wanted. Lives on the main thread.
class BackgroundWork : public QObject {
    Q_OBJECT

  public:
    /// What brings the result of a task where it belongs. Empty if there is none.
    using TakeOver = std::function<void()>;
    /// Works on another thread, on nothing but copies of its own, and asks from time to time whether it is
    /// still wanted. What it returns is called on the main thread.
    using Task = std::function<TakeOver(tallyrig::LogWork& work)>;

    explicit BackgroundWork(QObject* parent = nullptr);
    /// Cancels and waits for the end.
    ~BackgroundWork() override;

    /// Begins `task`. One that runs is cancelled first; its result is dropped, as is a task that waits.
    void start(Task task);
    /// Nothing happens if nothing runs. What is shown stays.
    void cancel();

    /// Whether a task runs or waits for a cancelled one to end.
    bool isRunning() const { return thread.joinable(); }
    /// How far the task is, from 0 to 1.
    double progress() const { return work ? work->progress() : 0; }

  signals:
    void runningChanged();
    /// `progress` may be another one. Sent some times a second while a task runs.
    void progressed();

  private:
    void runWaiting();
    /// What the task threw goes on to the event loop, as if it had been thrown there.
    void finish(const TakeOver& takeOver, const std::exception_ptr& failure);

    std::unique_ptr<tallyrig::LogWork> work;  ///< Of the running task.
    std::thread thread;                       ///< Joinable while a task runs.
    Task waiting;
    QTimer ticking;
};

}  // namespace quillon
