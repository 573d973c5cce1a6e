// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/PaneSplitter.h"

#include <QPainter>
#include <QSplitterHandle>

#include <algorithm>

namespace quillon {

namespace {

/// A line of one pixel; Qt takes hold of it from a few pixels around.
class LineHandle : public QSplitterHandle {
  public:
    using QSplitterHandle::QSplitterHandle;

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(contentsRect(), palette().color(QPalette::Mid));
    }
};

}  // namespace

PaneSplitter::PaneSplitter(QWidget* parent) : QSplitter(Qt::Horizontal, parent) {
    setHandleWidth(1);
    setChildrenCollapsible(false);
}

void PaneSplitter::addPane(QWidget* pane, PaneWidths widths) {
    pane->setMinimumWidth(widths.least);
    pane->setMaximumWidth(widths.most);
    addWidget(pane);
    setStretchFactor(indexOf(pane), widths.takesRoom ? 1 : 0);
    idealWidths.append(widths.ideal);
    setSizes(idealWidths);
}

void PaneSplitter::setIdealWidth(QWidget& pane, int width) {
    idealWidths[indexOf(&pane)] = std::clamp(width, pane.minimumWidth(), pane.maximumWidth());
    setSizes(idealWidths);
}

QSplitterHandle* PaneSplitter::createHandle() {
    return new LineHandle(orientation(), this);
}

}  // namespace quillon
