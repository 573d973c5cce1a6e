// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

class QWidget;

namespace quillon {

/// Lets the Tab key go on from `before` to the controls in `container`, in the order in which they were made.
/// What is made last comes last in its window, behind all other panes, unless it is told its place.
void putIntoTabOrder(QWidget& before, const QWidget& container);

/// Lets `pane` hand the keyboard on to `part`, one of its own at that moment, whenever it is given it. Not by
/// a focus proxy: a pane stands behind its parts in the order of the tab key, and from there Tab would come
/// back to the proxy and never leave.
void handKeyboardOn(QWidget& pane, std::function<QWidget*()> part);

}  // namespace quillon
