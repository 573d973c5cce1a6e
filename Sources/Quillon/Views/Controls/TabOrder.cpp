// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/TabOrder.h"

#include <QFocusEvent>
#include <QWidget>

#include <utility>

namespace quillon {

namespace {

class KeyboardGiver : public QObject {
  public:
    KeyboardGiver(QWidget& pane, std::function<QWidget*()> part)
        : QObject(&pane), partOfPane(std::move(part)) {}

  protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::FocusIn) {
            partOfPane()->setFocus(static_cast<QFocusEvent*>(event)->reason());
        }
        return false;
    }

  private:
    std::function<QWidget*()> partOfPane;
};

}  // namespace

void putIntoTabOrder(QWidget& before, const QWidget& container) {
    QWidget* last = &before;
    for (QWidget* control : container.findChildren<QWidget*>()) {
        // The list of a picker is a window of its own.
        const bool isHere = control->window() == before.window();
        // A field and the widget around it are moved as one: where Tab comes upon that, it goes to the field.
        const bool isPart = last->focusProxy() != nullptr && last->isAncestorOf(control);
        const QWidget* const proxy = control->focusProxy();
        const bool isStop = proxy == nullptr || control->isAncestorOf(proxy);
        // Of choices that exclude each other only one is met at a time, but each of them may become that one.
        if (isHere && isStop && !isPart && control->focusPolicy() != Qt::NoFocus) {
            QWidget::setTabOrder(last, control);
            last = control;
        }
    }
}

void handKeyboardOn(QWidget& pane, std::function<QWidget*()> part) {
    pane.installEventFilter(new KeyboardGiver(pane, std::move(part)));
}

}  // namespace quillon
