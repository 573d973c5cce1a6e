// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QString;
class QToolButton;
class QWidget;

namespace quillon {

/// A flat button that shows the icon of this name (`icon`) alone; `text` is its tool tip and what assistive
/// technology knows it by. It takes the keyboard from the tab key only.
QToolButton* iconButton(const QString& iconName, const QString& text, QWidget* parent);

}  // namespace quillon
