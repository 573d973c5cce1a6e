// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>

#include <exception>
#include <functional>
#include <memory>
#include <thread>
#include <utility>

namespace quillon {

/// Runs what takes long beside the main thread, one task at a time, and takes its result over on the main
/// thread if it is still wanted. Lives on the main thread.
class BackgroundWork : public QObject {
    Q_OBJECT

  public:
    /// What brings the result of a task where it belongs. Empty if there is none.
    using TakeOver = std::function<void()>;

    explicit BackgroundWork(QObject* parent = nullptr);
    /// Cancels and waits for the end.
    ~BackgroundWork() override;

    /// Begins `task`, which works on another thread, on nothing but copies of its own. It tells how far it is
    /// by the `Work` that it is given (`double progress() const`), and asks that whether it is still wanted
    /// (after `cancel()`). What it returns is called on the main thread.
    ///
    /// A task that runs is cancelled first; its result is dropped, as is a task that waits. Returns the
    /// `Work` for those who want to know more of it.
    template <typename Work>
    std::shared_ptr<const Work> start(std::function<TakeOver(Work& work)> task) {
        const auto work = std::make_shared<Work>();
        begin({[work, task = std::move(task)] { return task(*work); }, [work] { work->cancel(); },
               [work] { return work->progress(); }});
        return work;
    }
    /// Nothing happens if nothing runs. What is shown stays.
    void cancel();

    /// Whether a task runs or waits for a cancelled one to end.
    bool isRunning() const { return thread.joinable(); }
    /// How far the task is, from 0 to 1.
    double progress() const { return running.progress ? running.progress() : 0; }

  signals:
    void runningChanged();
    /// `progress` may be another one. Sent some times a second while a task runs.
    void progressed();

  private:
    struct Job {
        std::function<TakeOver()> run;
        std::function<void()> cancel;
        std::function<double()> progress;
    };

    void begin(Job job);
    void cancelRunning();
    void runWaiting();
    /// What the task threw goes on to the event loop, as if it had been thrown there.
    void finish(const TakeOver& takeOver, const std::exception_ptr& failure);

    Job running;
    bool isCancelled = false;  ///< The running one.
    Job waiting;
    std::thread thread;  ///< Joinable while a task runs.
    QTimer ticking;
};

}  // namespace quillon
