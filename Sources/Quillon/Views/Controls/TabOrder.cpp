#include "Quillon/Views/Controls/TabOrder.h"

#include <QWidget>

namespace quillon {

void putIntoTabOrder(QWidget& before, const QWidget& container) {
    QWidget* last = &before;
    for (QWidget* control : container.findChildren<QWidget*>()) {
        // The list of a picker is a window of its own.
        const bool isHere = control->window() == before.window();
        // A field and the widget around it are moved as one: where Tab comes upon that, it goes to the field.
        const bool isPart = last->focusProxy() != nullptr && last->isAncestorOf(control);
        const QWidget* const proxy = control->focusProxy();
        const bool isStop = proxy == nullptr || control->isAncestorOf(proxy);
        if (isHere && isStop && !isPart && (control->focusPolicy() & Qt::TabFocus) != 0) {
            QWidget::setTabOrder(last, control);
            last = control;
        }
    }
}

}  // namespace quillon
