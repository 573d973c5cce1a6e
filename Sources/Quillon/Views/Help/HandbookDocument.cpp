// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Help/HandbookDocument.h"

#include "Quillon/Views/Controls/Colors.h"
#include "Quillon/Views/Controls/Labels.h"

#include <QFile>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextTable>
#include <QUrl>

#include <algorithm>

namespace quillon {

namespace {

const QString folder = QStringLiteral(":/Handbook/");

/// Marks what is said below a picture.
constexpr int captionProperty = QTextFormat::UserProperty + 1;

bool isPicture(const QTextBlock& block) {
    return block.begin() != block.end() && block.begin().fragment().charFormat().isImageFormat();
}

/// The runs of text in one format, as ranges: setting a format moves the iterators of the block.
std::vector<QTextCursor> runsOf(QTextDocument& document, const QTextBlock& block) {
    std::vector<QTextCursor> runs;
    for (auto run = block.begin(); run != block.end(); ++run) {
        QTextCursor range(&document);
        range.setPosition(run.fragment().position());
        range.setPosition(run.fragment().position() + run.fragment().length(), QTextCursor::KeepAnchor);
        runs.push_back(range);
    }
    return runs;
}

}  // namespace

QString handbookText() {
    QFile file(folder + QStringLiteral("Handbuch.md"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString handbookPicture(const QString& name) {
    return folder + name;
}

QString anchorOf(const QString& heading) {
    QString anchor;
    for (const QChar character : heading.toLower()) {
        if (character == QLatin1Char(' ')) {
            anchor += QLatin1Char('-');
        } else if (character.isLetterOrNumber() || character == QLatin1Char('-') ||
                   character == QLatin1Char('_')) {
            anchor += character;
        }
    }
    return anchor;
}

HandbookDocument::HandbookDocument(const QString& markdown, const QPalette& palette, QObject* parent)
    : QTextDocument(parent) {
    setUndoRedoEnabled(false);
    constexpr double marginPx = 16;
    setDocumentMargin(marginPx);
    setMarkdown(markdown, MarkdownDialectGitHub);
    addCaptions();
    findHeadings();
    setSpacing();
    freeSizes();
    setColors(palette);
}

std::optional<std::size_t> HandbookDocument::headingAt(const QString& anchor) const {
    const auto found = std::ranges::find(allHeadings, anchor, &HandbookHeading::anchor);
    return found == allHeadings.end() ? std::nullopt
                                      : std::optional(static_cast<std::size_t>(found - allHeadings.begin()));
}

void HandbookDocument::setColors(const QPalette& palette) {
    setTables(palette);
    setTextColors(palette);
}

/// What a picture shows is told to those who cannot see it, and helps all others.
void HandbookDocument::addCaptions() {
    for (QTextBlock block = begin(); block.isValid(); block = block.next()) {
        if (!isPicture(block)) {
            continue;
        }
        QTextCursor end(block);
        const QString caption =
            end.block().begin().fragment().charFormat().stringProperty(QTextFormat::ImageAltText);
        end.movePosition(QTextCursor::EndOfBlock);
        QTextBlockFormat below;
        below.setProperty(captionProperty, true);
        end.insertBlock(below, QTextCharFormat());
        end.insertText(caption);
        block = end.block();
    }
}

void HandbookDocument::findHeadings() {
    for (QTextBlock block = begin(); block.isValid(); block = block.next()) {
        const int level = block.blockFormat().headingLevel();
        if (level == 0) {
            continue;
        }
        const QString wanted = anchorOf(block.text());
        QString anchor = wanted;
        for (int number = 1; headingAt(anchor); ++number) {
            anchor = wanted + QLatin1Char('-') + QString::number(number);
        }
        allHeadings.push_back({level, block.text(), anchor, block.position()});
    }
}

void HandbookDocument::setSpacing() {
    constexpr double aboveChapterPx = 24;
    constexpr double aboveTextPx = 8;
    constexpr double aboveItemPx = 4;
    constexpr double cellPaddingPx = 5;
    constexpr double lineHeightPercent = 120;
    for (QTextBlock block = begin(); block.isValid(); block = block.next()) {
        QTextCursor cursor(block);
        QTextBlockFormat format = block.blockFormat();
        const bool isInTable = cursor.currentTable() != nullptr;
        const bool isHeading = format.headingLevel() > 0;
        if (!isInTable) {
            format.setTopMargin(isHeading && block != begin() ? aboveChapterPx
                                : block.textList() != nullptr ? aboveItemPx
                                                              : aboveTextPx);
            format.setBottomMargin(aboveItemPx);
        }
        if (!isPicture(block) && !isHeading) {
            format.setLineHeight(lineHeightPercent, QTextBlockFormat::ProportionalHeight);
        }
        cursor.setBlockFormat(format);
        if (QTextTable* const table = cursor.currentTable()) {
            QTextTableFormat lines = table->format();
            lines.setBorderCollapse(true);
            lines.setBorder(1);
            lines.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
            lines.setCellPadding(cellPaddingPx);
            lines.setCellSpacing(0);
            lines.setTopMargin(aboveTextPx);
            lines.setBottomMargin(aboveTextPx);
            table->setFormat(lines);
        }
    }
}

/// Letters of fixed width come with a size of their own, which would not grow with the others.
void HandbookDocument::freeSizes() {
    for (QTextBlock block = begin(); block.isValid(); block = block.next()) {
        for (QTextCursor& run : runsOf(*this, block)) {
            QTextCharFormat format = run.charFormat();
            if (format.hasProperty(QTextFormat::FontPointSize)) {
                format.clearProperty(QTextFormat::FontPointSize);
                run.setCharFormat(format);
            }
        }
    }
}

void HandbookDocument::setTables(const QPalette& palette) {
    const QColor ground = palette.color(QPalette::Base);
    const QColor text = palette.color(QPalette::Text);
    for (QTextFrame* frame : rootFrame()->childFrames()) {
        auto* const table = qobject_cast<QTextTable*>(frame);
        if (table == nullptr) {
            continue;
        }
        constexpr double shareOfText = 0.35;
        constexpr double shareInHead = 0.08;
        QTextTableFormat lines = table->format();
        lines.setBorderBrush(blended(text, shareOfText, ground));
        table->setFormat(lines);
        for (int column = 0; column < table->columns(); ++column) {
            QTextTableCell cell = table->cellAt(0, column);
            QTextCharFormat head = cell.format();
            head.setBackground(blended(text, shareInHead, ground));
            cell.setFormat(head);
        }
    }
}

void HandbookDocument::setTextColors(const QPalette& palette) {
    const QColor ground = palette.color(QPalette::Base);
    constexpr double shareInRemark = 0.08;
    const QColor remarkGround = blended(palette.color(QPalette::Highlight), shareInRemark, ground);
    QTextBlockFormat remark;
    remark.setBackground(remarkGround);
    QTextCharFormat link;
    link.setForeground(standingOut(palette.color(QPalette::Link), {ground, remarkGround}, textContrast));
    QTextCharFormat caption;
    caption.setForeground(palette.color(QPalette::PlaceholderText));
    caption.setFontItalic(true);
    for (QTextBlock block = begin(); block.isValid(); block = block.next()) {
        const bool isCaption = block.blockFormat().hasProperty(captionProperty);
        if (block.blockFormat().hasProperty(QTextFormat::BlockQuoteLevel)) {
            QTextCursor(block).mergeBlockFormat(remark);
        }
        for (QTextCursor& run : runsOf(*this, block)) {
            const QTextCharFormat format = run.charFormat();
            if (format.isAnchor()) {
                // Where it leads to is seen before one goes there.
                const QUrl address(format.anchorHref());
                const auto chapter = headingAt(address.fragment());
                link.setToolTip(plainToolTip(address.scheme().isEmpty() && chapter
                                                 ? allHeadings[*chapter].title
                                                 : address.toDisplayString()));
                run.mergeCharFormat(link);
            } else if (isCaption) {
                run.mergeCharFormat(caption);
            }
        }
    }
}

}  // namespace quillon
