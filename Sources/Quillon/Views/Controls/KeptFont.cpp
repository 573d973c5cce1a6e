// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/KeptFont.h"

#include <QEvent>
#include <QPointer>
#include <QWidget>

#include <utility>

namespace quillon {

namespace {

/// Sees the desktop's font change by the parent of a widget, which has no font of its own.
class FontKeeper : public QObject {
  public:
    FontKeeper(QWidget& fontWidget, std::function<QFont()> wantedFont)
        : QObject(&fontWidget), widget(fontWidget), font(std::move(wantedFont)) {
        widget.installEventFilter(this);
        followParent();
        widget.setFont(font());
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == &widget && event->type() == QEvent::ParentChange) {
            followParent();
        } else if (watched != &widget && event->type() == QEvent::FontChange) {
            widget.setFont(font());
        }
        return false;
    }

  private:
    void followParent() {
        if (parentWidget != nullptr) {
            parentWidget->removeEventFilter(this);
        }
        parentWidget = widget.parentWidget();
        if (parentWidget != nullptr) {
            parentWidget->installEventFilter(this);
        }
    }

    QWidget& widget;
    std::function<QFont()> font;
    QPointer<QWidget> parentWidget;
};

}  // namespace

void keepFont(QWidget& widget, std::function<QFont()> font) {
    new FontKeeper(widget, std::move(font));
}

}  // namespace quillon
