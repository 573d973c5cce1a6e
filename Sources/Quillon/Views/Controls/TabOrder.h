#pragma once

class QWidget;

namespace quillon {

/// Lets the Tab key go on from `before` to the controls in `container`, in the order in which they were made.
/// What is made last comes last in its window, behind all other panes, unless it is told its place.
void putIntoTabOrder(QWidget& before, const QWidget& container);

}  // namespace quillon
