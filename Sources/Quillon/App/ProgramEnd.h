// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Platform/Kept/KeptNote.h"

#include <QObject>

#include <array>
#include <functional>

class QGuiApplication;

namespace quillon {

/// Lets something be done before the program ends: because the user closes it, the session ends, it gets one
/// of the signals SIGTERM, SIGINT and SIGHUP, or loses its display. One object at a time.
class ProgramEnd : public QObject {
  public:
    /// `before` is called on the main thread, once, from the event loop or from `exit`; in the latter case no
    /// window may be touched any more (`KeptReason::displayLost`). `beforeSession` may be called any number
    /// of times: the session, which was about to end, may go on.
    ProgramEnd(QGuiApplication& application, std::function<void(KeptReason)> before,
               std::function<void()> beforeSession);
    ~ProgramEnd() override;

  private:
    void end(KeptReason reason);
    void takeSignal();
    static void endOfProcess();

    static ProgramEnd* current;  ///< A handler of `exit` has nothing but what is global.
    std::function<void(KeptReason)> beforeEnd;
    std::array<int, 2> pipe = {-1, -1};
    bool isSessionEnding = false;
};

}  // namespace quillon
