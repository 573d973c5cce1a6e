// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Grid/TableKeys.h"

#include <QKeyEvent>

namespace quillon {

std::optional<TableMove> moveFor(const QKeyEvent& event) {
    const bool control = event.modifiers().testFlag(Qt::ControlModifier);
    switch (event.key()) {
        case Qt::Key_Up:
            return TableMove::up;
        case Qt::Key_Down:
            return TableMove::down;
        case Qt::Key_Left:
            return TableMove::left;
        case Qt::Key_Right:
            return TableMove::right;
        case Qt::Key_PageUp:
            return TableMove::pageUp;
        case Qt::Key_PageDown:
            return TableMove::pageDown;
        case Qt::Key_Home:
            return control ? TableMove::tableStart : TableMove::rowStart;
        case Qt::Key_End:
            return control ? TableMove::tableEnd : TableMove::rowEnd;
        default:
            return std::nullopt;
    }
}

QString typedText(const QKeyEvent& event) {
    const Qt::KeyboardModifiers keys = event.modifiers() & ~Qt::KeypadModifier;
    // With AltGr, Control and Alt can be down as well.
    const bool isCommand = (keys & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0 &&
                           keys != (Qt::ControlModifier | Qt::AltModifier);
    return isCommand || event.text().isEmpty() || !event.text().at(0).isPrint() ? QString() : event.text();
}

}  // namespace quillon
