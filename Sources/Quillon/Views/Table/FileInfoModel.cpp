// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Table/FileInfoModel.h"

#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Tallyrig/Text/Text.h"
#include "Tallyrig/Text/VisibleText.h"

#include <QApplication>
#include <QFontDatabase>
#include <QPainter>

#include <algorithm>

namespace quillon {

namespace {

constexpr int nameWidthPx = 160;
constexpr int marginPx = 12;
/// A header can hold a whole book, or a file that is no log at all.
constexpr std::size_t mostCommentLines = 1000;

/// Takes the first lines off `text`, which they refer to.
std::vector<std::string_view> takeLines(std::string_view& text) {
    std::vector<std::string_view> lines;
    while (!text.empty() && lines.size() < mostCommentLines) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        lines.push_back(tallyrig::text::trimmed(text.substr(0, end)));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

QString shownText(std::string_view text) {
    const std::string_view front = cutToShow(text);
    return toQString(tallyrig::text::visibleText(front)) +
           (front.size() < text.size() ? QStringLiteral(" …") : QString());
}

}  // namespace

void FileInfoModel::setDocument(const tallyrig::ADIFDocument& log) {
    if (log.headerComment() == document.headerComment() && log.headerFields() == document.headerFields()) {
        return;
    }
    beginResetModel();
    document = log;
    std::string_view rest = tallyrig::text::trimmed(document.headerComment());
    commentLines = takeLines(rest);
    if (!rest.empty()) {
        const auto left = static_cast<std::size_t>(std::ranges::count(rest, '\n')) + 1;
        furtherLines = "… (" + numberText(left).toStdString() + " weitere Zeilen)";
        commentLines.push_back(furtherLines);
    }
    endResetModel();
}

int FileInfoModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(commentLines.size() + document.headerFields().size());
}

QVariant FileInfoModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    const auto row = static_cast<std::size_t>(index.row());
    const bool isComment = row < commentLines.size();
    const auto* field = isComment ? nullptr : &document.headerFields()[row - commentLines.size()];
    const std::string_view name = isComment ? std::string_view() : std::string_view(field->name);
    const std::string_view value = isComment ? commentLines[row] : std::string_view(field->value);
    const auto withName = [&](const QString& shownName, const QString& shownValue) {
        return isComment ? shownValue : shownName + QStringLiteral(": ") + shownValue;
    };
    switch (role) {
        case nameRole:
            return shownText(name);
        case valueRole:
            return shownText(value);
        case Qt::DisplayRole:
            return withName(shownText(name), shownText(value));
        case Qt::ToolTipRole:
            return plainToolTip(withName(shownText(name), shownText(value)));
        case wholeRole:
            return withName(toQString(name), toQString(value));
        default:
            return {};
    }
}

void FileInfoDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    item.text.clear();
    const QStyle& style = item.widget != nullptr ? *item.widget->style() : *QApplication::style();
    style.drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);

    const QRect row = item.rect.adjusted(marginPx, 0, -marginPx, 0);
    const QString name = index.data(FileInfoModel::nameRole).toString();
    const bool isSelected = item.state.testFlag(QStyle::State_Selected);
    const auto draw = [&](const QRect& area, const QFont& font, const QString& text) {
        painter->setFont(font);
        painter->drawText(area, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                          QFontMetrics(font).elidedText(text, Qt::ElideRight, area.width()));
    };
    painter->save();
    painter->setPen(item.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
    if (!name.isEmpty()) {
        draw(QRect(row.left(), row.top(), nameWidthPx, row.height()),
             QFontDatabase::systemFont(QFontDatabase::FixedFont), name);
    }
    const int indent = name.isEmpty() ? 0 : nameWidthPx + marginPx;
    draw(row.adjusted(indent, 0, 0, 0), item.font, index.data(FileInfoModel::valueRole).toString());
    painter->restore();
}

QSize FileInfoDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
    const QFontMetrics fixed(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    return {1, std::max(option.fontMetrics.height(), fixed.height()) + 4};
}

}  // namespace quillon
