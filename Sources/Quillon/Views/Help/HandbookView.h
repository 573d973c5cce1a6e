// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTextBrowser>
#include <QTextCursor>

#include <cstddef>
#include <vector>

namespace quillon {

class HandbookDocument;

/// Shows a handbook to be read: it knows which part is read, leads along links and back, finds text, and
/// makes letters larger.
class HandbookView : public QTextBrowser {
    Q_OBJECT

  public:
    /// The view owns the document.
    explicit HandbookView(HandbookDocument* handbook, QWidget* parent = nullptr);

    const HandbookDocument& handbook() const { return *book; }
    /// The part at the top of the view, or the one that was gone to last where the text ends before that can
    /// be at the top.
    std::size_t currentHeading() const { return heading; }
    /// Brings the start of the part to the top, and keeps the place where the reader was for the way back.
    void goToHeading(std::size_t index);

    /// Marks all places where `text` stands, whatever the case of its letters, and shows the first from where
    /// the reader is. An empty text ends the search.
    void search(const QString& text);
    std::size_t hitCount() const { return hits.size(); }
    /// Which of them is shown, from zero.
    std::size_t currentHit() const { return hit; }
    /// Shows the next or the previous one; behind the last comes the first.
    void showNextHit();
    void showPreviousHit();

    /// 100 for letters of the size that the window has. The size stays between 50 and 300.
    void setZoom(int percent);
    int zoom() const { return zoomPercent; }

  public slots:
    void backward() override;
    void forward() override;
    void home() override;

  signals:
    void headingChanged(std::size_t index);
    void zoomChanged(int percent);
    /// The reader wants to see an address of the web.
    void addressWanted(const QUrl& address);

  protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    void followLink(const QUrl& address);
    int topPosition() const;
    double topOf(int position) const;
    void bringToTop(int position);
    void scrollTo(int position);
    void keepPlace();
    void moveInHistory(int step);
    void arriveAt(int position);
    void followScrolling();
    void setHeading(std::size_t index);
    void showHit(std::size_t index);
    void markHits();

    HandbookDocument* book;
    std::size_t heading = 0;
    std::vector<QTextCursor> hits;
    std::size_t hit = 0;
    std::vector<int> places = {0};  ///< Positions in the document where the reader went.
    std::size_t place = 0;          ///< Which of them the reader is at.
    int arrival = 0;                ///< How far the view was scrolled when the reader came there.
    int zoomPercent = 100;
    double ordinarySize;  ///< Of letters, in points.
};

}  // namespace quillon
