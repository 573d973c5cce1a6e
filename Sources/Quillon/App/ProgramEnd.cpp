// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/App/ProgramEnd.h"

#include <QGuiApplication>
#include <QSocketNotifier>
#include <QThread>

#include <fcntl.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <utility>

namespace quillon {

namespace {

constexpr std::array endSignals = {SIGTERM, SIGINT, SIGHUP};

// A handler of a signal has nothing but what is global.
std::atomic<int> signalPipe = -1;
static_assert(std::atomic<int>::is_always_lock_free);

extern "C" void noteSignal(int signal) {
    const int error = errno;
    const auto byte = static_cast<unsigned char>(signal);
    // A full pipe has the news already.
    static_cast<void>(::write(signalPipe, &byte, 1) == 1);
    errno = error;
}

/// A second signal of the kind ends the program at once: the user means it.
void listenTo(int signal) {
    struct sigaction old = {};
    struct sigaction wanted = {};
    wanted.sa_handler = noteSignal;
    wanted.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
    // One that was to be ignored, as by nohup, stays so.
    if (::sigaction(signal, nullptr, &old) == 0 && old.sa_handler != SIG_IGN) {
        ::sigaction(signal, &wanted, nullptr);
    }
}

}  // namespace

ProgramEnd* ProgramEnd::current = nullptr;

ProgramEnd::ProgramEnd(QGuiApplication& application, std::function<void(KeptReason)> before,
                       std::function<void()> beforeSession)
    : beforeEnd(std::move(before)) {
    if (::pipe2(pipe.data(), O_CLOEXEC | O_NONBLOCK) == 0) {
        auto* notifier = new QSocketNotifier(pipe[0], QSocketNotifier::Read, this);
        connect(notifier, &QSocketNotifier::activated, this, &ProgramEnd::takeSignal);
        signalPipe = pipe[1];
        for (const int signal : endSignals) {
            listenTo(signal);
        }
    }
    connect(&application, &QCoreApplication::aboutToQuit, this,
            [this] { end(isSessionEnding ? KeptReason::sessionEnded : KeptReason::windowClosed); });
#ifndef QT_NO_SESSIONMANAGER
    connect(
        &application, &QGuiApplication::commitDataRequest, this,
        [this, keep = std::move(beforeSession)] {
            isSessionEnding = true;
            keep();
        },
        Qt::DirectConnection);
#endif
    // The library of the display calls `exit` when the display is gone.
    current = this;
    static_cast<void>(std::atexit(endOfProcess));
}

ProgramEnd::~ProgramEnd() {
    current = nullptr;
    for (const int signal : endSignals) {
        struct sigaction old = {};
        if (::sigaction(signal, nullptr, &old) == 0 && old.sa_handler == noteSignal) {
            std::signal(signal, SIG_DFL);
        }
    }
    signalPipe = -1;
    for (const int end : pipe) {
        if (end >= 0) {
            ::close(end);
        }
    }
}

void ProgramEnd::end(KeptReason reason) {
    if (const auto before = std::exchange(beforeEnd, {})) {
        before(reason);
    }
}

void ProgramEnd::endOfProcess() {
    if (current != nullptr && QThread::currentThread() == current->thread()) {
        current->end(KeptReason::displayLost);
    }
}

void ProgramEnd::takeSignal() {
    unsigned char signal = 0;
    if (::read(pipe[0], &signal, 1) == 1) {
        end(KeptReason::terminated);
        constexpr int killed = 128;
        QCoreApplication::exit(killed + signal);
    }
}

}  // namespace quillon
