// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Help/HandbookView.h"

#include "Quillon/Views/Controls/Colors.h"
#include "Quillon/Views/Help/HandbookDocument.h"
#include "Quillon/Views/Help/HandbookPictures.h"

#include <QAbstractTextDocumentLayout>
#include <QScrollBar>
#include <QTextBlock>
#include <QUrl>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

constexpr int zoomStepPercent = 10;

}  // namespace

HandbookView::HandbookView(HandbookDocument* handbook, QWidget* parent)
    : QTextBrowser(parent), book(handbook), ordinarySize(font().pointSizeF()) {
    book->setParent(this);
    book->documentLayout()->registerHandler(QTextFormat::ImageObject, new HandbookPictures(book));
    setDocument(book);
    setOpenLinks(false);
    setAccessibleName(QStringLiteral("Handbuch"));
    setFrameShape(QFrame::NoFrame);
    connect(this, &QTextBrowser::anchorClicked, this, &HandbookView::followLink);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &HandbookView::followScrolling);
}

void HandbookView::goToHeading(std::size_t index) {
    const int target = book->headings()[index].position;
    keepPlace();
    places.resize(place + 1);
    if (places.back() != target) {
        places.push_back(target);
        ++place;
    }
    emit backwardAvailable(place > 0);
    emit forwardAvailable(false);
    arriveAt(target);
}

void HandbookView::followLink(const QUrl& address) {
    if (!address.scheme().isEmpty()) {
        emit addressWanted(address);
    } else if (const auto index = book->headingAt(address.fragment())) {
        goToHeading(*index);
    }
}

void HandbookView::backward() {
    if (place > 0) {
        moveInHistory(-1);
    }
}

void HandbookView::forward() {
    if (place + 1 < places.size()) {
        moveInHistory(1);
    }
}

void HandbookView::home() {
    goToHeading(0);
}

void HandbookView::moveInHistory(int step) {
    keepPlace();
    place = step < 0 ? place - 1 : place + 1;
    emit backwardAvailable(place > 0);
    emit forwardAvailable(place + 1 < places.size());
    arriveAt(places[place]);
}

void HandbookView::arriveAt(int position) {
    scrollTo(position);
    arrival = verticalScrollBar()->value();
    // The end of the text stops the scrolling before the last parts reach the top.
    const auto& headings = book->headings();
    const auto behind = std::ranges::upper_bound(headings, position, {}, &HandbookHeading::position);
    setHeading(behind == headings.begin() ? 0 : static_cast<std::size_t>(behind - headings.begin()) - 1);
}

/// The reader may have scrolled since.
void HandbookView::keepPlace() {
    if (verticalScrollBar()->value() != arrival) {
        places[place] = topPosition();
    }
}

int HandbookView::topPosition() const {
    return cursorForPosition({viewport()->width() / 2, 0}).block().position();
}

double HandbookView::topOf(int position) const {
    return book->documentLayout()->blockBoundingRect(book->findBlock(position)).top();
}

void HandbookView::bringToTop(int position) {
    constexpr double gapPx = 8;
    // Text is laid out bit by bit, and until the last the bar ends where the layout has come to.
    QAbstractTextDocumentLayout* const layout = book->documentLayout();
    emit layout->documentSizeChanged(layout->documentSize());
    verticalScrollBar()->setValue(static_cast<int>(std::floor(std::max(topOf(position) - gapPx, 0.0))));
}

void HandbookView::scrollTo(int position) {
    bringToTop(position);
    // The keyboard goes on from here.
    QTextCursor cursor = textCursor();
    cursor.setPosition(position);
    const int scrolled = verticalScrollBar()->value();
    setTextCursor(cursor);
    verticalScrollBar()->setValue(scrolled);
}

void HandbookView::followScrolling() {
    constexpr double readPx = 40;
    const double top = verticalScrollBar()->value() + readPx;
    const auto& headings = book->headings();
    const auto below = std::ranges::find_if(
        headings, [this, top](const HandbookHeading& each) { return topOf(each.position) > top; });
    setHeading(below == headings.begin() ? 0 : static_cast<std::size_t>(below - headings.begin()) - 1);
}

void HandbookView::setHeading(std::size_t index) {
    if (heading != index) {
        heading = index;
        emit headingChanged(index);
    }
}

void HandbookView::search(const QString& text) {
    hits.clear();
    for (QTextCursor found = book->find(text, 0); !text.isEmpty() && !found.isNull();
         found = book->find(text, found)) {
        hits.push_back(found);
    }
    if (hits.empty()) {
        markHits();
        return;
    }
    const int from = topPosition();
    const auto next = std::ranges::find_if(
        hits, [from](const QTextCursor& found) { return found.selectionStart() >= from; });
    showHit(next == hits.end() ? 0 : static_cast<std::size_t>(next - hits.begin()));
}

void HandbookView::showNextHit() {
    if (!hits.empty()) {
        showHit((hit + 1) % hits.size());
    }
}

void HandbookView::showPreviousHit() {
    if (!hits.empty()) {
        showHit((hit + hits.size() - 1) % hits.size());
    }
}

void HandbookView::showHit(std::size_t index) {
    hit = index;
    markHits();
    const QTextCursor& found = hits[index];
    QTextCursor before(book);
    before.setPosition(found.selectionStart());
    setTextCursor(before);
    // Not at the very edge, for what stands around it is wanted as well.
    const QRect there = cursorRect(before);
    const int margin = viewport()->height() / 4;
    if (there.top() < margin || there.bottom() > viewport()->height() - margin) {
        verticalScrollBar()->setValue(verticalScrollBar()->value() + there.top() - viewport()->height() / 3);
    }
}

void HandbookView::markHits() {
    constexpr double shareOfHighlight = 0.3;
    const QPalette colors = palette();
    const QColor ground =
        blended(colors.color(QPalette::Highlight), shareOfHighlight, colors.color(QPalette::Base));
    QTextEdit::ExtraSelection mark;
    mark.format.setBackground(ground);
    mark.format.setForeground(standingOut(colors.color(QPalette::Text), {ground}, textContrast));
    QList<QTextEdit::ExtraSelection> marks;
    for (const QTextCursor& found : hits) {
        mark.cursor = found;
        marks.append(mark);
    }
    if (!marks.isEmpty()) {
        QTextCharFormat& current = marks[static_cast<qsizetype>(hit)].format;
        const QColor letters = colors.color(QPalette::HighlightedText);
        current.setForeground(letters);
        current.setBackground(standingOut(colors.color(QPalette::Highlight), {letters}, textContrast));
    }
    setExtraSelections(marks);
}

void HandbookView::setZoom(int percent) {
    constexpr int least = 50;
    constexpr int most = 300;
    const int wanted = std::clamp(percent, least, most);
    if (wanted == zoomPercent) {
        return;
    }
    const int reading = book->headings().empty() ? 0 : topPosition();
    zoomPercent = wanted;
    QFont letters = font();
    letters.setPointSizeF(ordinarySize * zoomPercent / 100);
    setFont(letters);
    scrollTo(reading);
    emit zoomChanged(zoomPercent);
}

void HandbookView::changeEvent(QEvent* event) {
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        book->setColors(palette());
        markHits();
    }
}

void HandbookView::resizeEvent(QResizeEvent* event) {
    const bool hasScrolled = verticalScrollBar()->value() != arrival;
    QTextBrowser::resizeEvent(event);
    // At another width there is another height of text above the part that was gone to, most of all when the
    // window comes up and gets its own width. Whoever has scrolled since goes on from where the bar is.
    if (!hasScrolled) {
        bringToTop(places[place]);
        arrival = verticalScrollBar()->value();
    }
}

void HandbookView::wheelEvent(QWheelEvent* event) {
    if (event->modifiers() == Qt::ControlModifier && event->angleDelta().y() != 0) {
        setZoom(zoomPercent + (event->angleDelta().y() > 0 ? zoomStepPercent : -zoomStepPercent));
        event->accept();
        return;
    }
    QTextBrowser::wheelEvent(event);
}

}  // namespace quillon
