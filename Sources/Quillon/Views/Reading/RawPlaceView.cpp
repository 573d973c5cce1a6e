// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Reading/RawPlaceView.h"

#include "Quillon/Views/Controls/Colors.h"
#include "Quillon/Views/Controls/Labels.h"

#include <QKeyEvent>
#include <QPainter>
#include <QTextBlock>

#include <algorithm>

namespace quillon {

namespace {

constexpr int gapPx = 8;

}  // namespace

/// Stands beside the lines and lets the view paint their numbers.
class RawPlaceView::Margin : public QWidget {
  public:
    explicit Margin(RawPlaceView& placeView) : QWidget(&placeView), view(placeView) {}

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        view.paintNumbers(painter);
    }

  private:
    const RawPlaceView& view;
};

RawPlaceView::RawPlaceView(QWidget* parent) : QPlainTextEdit(parent), margin(new Margin(*this)) {
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setUndoRedoEnabled(false);
    setFrameShape(QFrame::NoFrame);
    setTabChangesFocus(true);
    // A line that is longer than the view goes on below: nothing of it is out of sight to a side.
    setWordWrapMode(QTextOption::WrapAnywhere);
    setAccessibleName(QStringLiteral("Stelle in der Datei"));
    connect(this, &QPlainTextEdit::updateRequest, margin, qOverload<>(&QWidget::update));
    layOut();
}

void RawPlaceView::showPlace(const RawPlace& place) {
    raw = place;
    QStringList texts;
    for (const RawPlace::Line& line : raw.lines) {
        texts.append(line.text);
    }
    setPlainText(texts.join(QLatin1Char('\n')));
    layOut();
    mark();
    showMark();
}

QStringList RawPlaceView::lineNumbers() const {
    QStringList numbers;
    for (const RawPlace::Line& line : raw.lines) {
        numbers.append(QString::number(line.number));
    }
    return numbers;
}

QString RawPlaceView::markedText() const {
    return extraSelections().isEmpty() ? QString() : extraSelections().last().cursor.selectedText();
}

int RawPlaceView::marginWidth() const {
    const std::size_t largest = raw.lines.empty() ? 1 : raw.lines.back().number;
    return fontMetrics().horizontalAdvance(QString(QString::number(largest).size(), QLatin1Char('0'))) +
           2 * gapPx;
}

void RawPlaceView::layOut() {
    const QFont fixed = fixedFontBeside(parentWidget() != nullptr ? parentWidget()->font() : QFont());
    if (font() != fixed) {
        setFont(fixed);
    }
    setViewportMargins(marginWidth(), 0, 0, 0);
    margin->setGeometry(contentsRect().left(), contentsRect().top(), marginWidth(), contentsRect().height());
}

/// The line in a faint tint, the part that it is about in a stronger one.
void RawPlaceView::mark() {
    constexpr double faint = 0.12;
    constexpr double strong = 0.45;
    if (raw.lines.empty()) {
        setExtraSelections({});
        return;
    }
    const QTextBlock block = document()->findBlockByNumber(static_cast<int>(raw.markedLine));
    const QColor ground = palette().color(QPalette::Base);
    const QColor color = screenColor(SystemColor::orange);
    QTextEdit::ExtraSelection line;
    line.cursor = QTextCursor(block);
    line.cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    line.format.setBackground(blended(color, faint, ground));
    QTextEdit::ExtraSelection part;
    part.cursor = QTextCursor(block);
    const int begin = block.position() + static_cast<int>(raw.markBegin);
    part.cursor.setPosition(begin);
    part.cursor.setPosition(begin + static_cast<int>(raw.markLength), QTextCursor::KeepAnchor);
    part.format.setBackground(blended(color, strong, ground));
    setExtraSelections({line, part});
}

void RawPlaceView::showMark() {
    if (raw.lines.empty()) {
        return;
    }
    QTextCursor place(document()->findBlockByNumber(static_cast<int>(raw.markedLine)));
    place.setPosition(place.position() + static_cast<int>(raw.markBegin));
    setTextCursor(place);
    centerCursor();
}

void RawPlaceView::paintNumbers(QPainter& painter) const {
    painter.fillRect(margin->rect(), palette().color(QPalette::AlternateBase));
    painter.setFont(font());
    const QColor others = palette().color(QPalette::PlaceholderText);
    int index = 0;
    for (QTextBlock block = firstVisibleBlock(); block.isValid(); block = block.next()) {
        const QRectF place = blockBoundingGeometry(block).translated(contentOffset());
        if (place.top() > margin->height()) {
            break;
        }
        index = block.blockNumber();
        if (index >= static_cast<int>(raw.lines.size())) {
            break;
        }
        const RawPlace::Line& line = raw.lines[static_cast<std::size_t>(index)];
        const bool isMarked = static_cast<std::size_t>(index) == raw.markedLine;
        painter.setPen(isMarked ? palette().color(QPalette::Text) : others);
        painter.drawText(QRectF(0, place.top(), margin->width() - gapPx, fontMetrics().height()),
                         Qt::AlignRight | Qt::AlignTop, QString::number(line.number));
    }
}

bool RawPlaceView::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->matches(QKeySequence::Copy) || key->matches(QKeySequence::SelectAll)) {
            // Meant for this text and not for the rows of the table.
            event->accept();
            return true;
        }
    }
    return QPlainTextEdit::event(event);
}

void RawPlaceView::changeEvent(QEvent* event) {
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::PaletteChange) {
        layOut();
        mark();
    }
}

void RawPlaceView::resizeEvent(QResizeEvent* event) {
    QPlainTextEdit::resizeEvent(event);
    layOut();
    showMark();
}

}  // namespace quillon
