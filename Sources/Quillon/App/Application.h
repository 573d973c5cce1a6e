// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>

#include <functional>
#include <utility>

namespace quillon {

/// The application object. Work for which the memory does not reach ends there and then, not the program: the
/// log that nobody has saved yet stays in hand.
class Application : public QApplication {
  public:
    /// Both outlive the object.
    Application(int& argumentCount, char** argumentValues) : QApplication(argumentCount, argumentValues) {}

    /// `tell` is called from the event loop, after work was given up for want of memory.
    void whenOutOfMemory(std::function<void()> tell) { outOfMemory = std::move(tell); }

    bool notify(QObject* receiver, QEvent* event) override;

  private:
    std::function<void()> outOfMemory;
    bool hasToldOfPainting = false;
};

}  // namespace quillon
