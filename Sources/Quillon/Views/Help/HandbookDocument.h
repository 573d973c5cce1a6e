// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPalette>
#include <QString>
#include <QTextDocument>

#include <optional>
#include <vector>

namespace quillon {

/// A heading of the handbook, by which its part is found.
struct HandbookHeading {
    int level = 1;     ///< 1 for the title of the whole, 2 for a chapter, and so on.
    QString title;     ///< As it is read.
    QString anchor;    ///< What a link to it says behind "#"; unique in its document.
    int position = 0;  ///< Of its first character in the document.
};

/// The handbook as it came with the program, Markdown. Pictures are named from where `handbookPicture` looks.
QString handbookText();

/// The file of a picture that the handbook names, such as "pictures/compare.png". There need not be one.
QString handbookPicture(const QString& name);

/// What links to a heading call it: in lower case, with hyphens for blanks and without punctuation, as the
/// places that show Markdown on the web do.
QString anchorOf(const QString& heading);

/// A text in Markdown (GitHub's dialect), set to be read on screen: headings that links can lead to, tables
/// with lines, below each picture what it shows. It takes its colours from a palette.
class HandbookDocument : public QTextDocument {
    Q_OBJECT

  public:
    HandbookDocument(const QString& markdown, const QPalette& palette, QObject* parent = nullptr);

    /// In the order of the text.
    const std::vector<HandbookHeading>& headings() const { return allHeadings; }
    /// The position in `headings` of the one with this anchor; absent if there is none.
    std::optional<std::size_t> headingAt(const QString& anchor) const;

    void setColors(const QPalette& palette);

  private:
    void addCaptions();
    void findHeadings();
    void setSpacing();
    void freeSizes();
    void setTables(const QPalette& palette);
    void setTextColors(const QPalette& palette);

    std::vector<HandbookHeading> allHeadings;
};

}  // namespace quillon
