// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/IconButton.h"

#include "Quillon/Views/Controls/Icons.h"

#include <QToolButton>

namespace quillon {

QToolButton* iconButton(const QString& iconName, const QString& text, QWidget* parent) {
    auto* button = new QToolButton(parent);
    button->setIcon(icon(iconName));
    button->setToolTip(text);
    button->setAccessibleName(text);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

}  // namespace quillon
