// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/FindingList.h"

#include "Quillon/Views/Controls/BandDot.h"
#include "Quillon/Views/Controls/Colors.h"
#include "Quillon/Views/Controls/Labels.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Tallyrig/Text/VisibleText.h"

#include <QApplication>
#include <QEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <utility>

namespace quillon {

namespace {

constexpr int marginPx = 8;
constexpr int gapPx = 14;
constexpr int rowPaddingPx = 10;
constexpr int dotRoomPx = 14;
constexpr int badgePaddingPx = 6;

/// What a row is made of, from left to right.
enum class Part { number, time, call, dot, band, badge, text, counterpart };
constexpr std::size_t partCount = 8;

/// At most so wide; the text takes what is left.
constexpr std::array<int, partCount> widestPx = {200, 100, 220, dotRoomPx, 110, 260, 0, 260};

QString wordsOf(const FindingRow& row, Part part) {
    switch (part) {
        case Part::number:
            return row.number;
        case Part::time:
            return row.time;
        case Part::call:
            return row.call;
        case Part::band:
            return toQString(tallyrig::text::visibleText(cutToShow(row.band)));
        case Part::badge:
            return row.badge.text;
        case Part::text:
            return row.text;
        case Part::counterpart:
            return row.counterpart;
        case Part::dot:
            break;
    }
    return {};
}

constexpr std::array<Part, partCount> parts = {Part::number, Part::time,  Part::call, Part::dot,
                                               Part::band,   Part::badge, Part::text, Part::counterpart};

QStringList toldOf(const FindingRow& row) {
    QStringList told;
    for (const Part part : parts) {
        if (const QString words = wordsOf(row, part); !words.isEmpty()) {
            told.append(QString(words).replace(QLatin1Char('\n'), QStringLiteral("; ")));
        }
    }
    return told;
}

int linesOf(const FindingRow& row) {
    return static_cast<int>(row.text.count(QLatin1Char('\n'))) + 1;
}

}  // namespace

/// The rows, and how wide the parts of all of them are.
class FindingList::Model : public QAbstractListModel {
  public:
    /// By part. Nothing takes the place of what no row has.
    using Widths = std::array<int, partCount>;

    explicit Model(QString rowToolTip, QObject* parent)
        : QAbstractListModel(parent), toolTip(std::move(rowToolTip)) {}

    void setRows(std::vector<FindingRow> findings) {
        beginResetModel();
        rows = std::move(findings);
        measured.reset();
        endResetModel();
    }
    const FindingRow& row(const QModelIndex& index) const {
        return rows[static_cast<std::size_t>(index.row())];
    }

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(rows.size());
    }
    QVariant data(const QModelIndex& index, int role) const override {
        if (!index.isValid() || index.row() >= rowCount()) {
            return {};
        }
        const FindingRow& finding = row(index);
        switch (role) {
            case Qt::DisplayRole:
                return toldOf(finding).join(QLatin1Char('\t'));
            case Qt::AccessibleTextRole:
                return toldOf(finding).join(QStringLiteral(", "));
            case Qt::ToolTipRole:
                return finding.leads ? plainToolTip(finding.text + QLatin1Char('\n') + toolTip)
                                     : plainToolTip(finding.text);
            default:
                return {};
        }
    }

    /// In letters of `font`. Cost: nothing as long as rows and font stay.
    const Widths& widths(const QFont& font) const {
        if (!measured || measuredFont != font) {
            const QFontMetrics letters(font);
            Widths widest{};
            for (const FindingRow& finding : rows) {
                for (const Part part : parts) {
                    int& width = widest[static_cast<std::size_t>(part)];
                    const QString words = wordsOf(finding, part);
                    if (part == Part::dot) {
                        width = std::max(width, finding.band.empty() ? 0 : dotRoomPx);
                    } else if (part != Part::text && !words.isEmpty()) {
                        // With a pixel to spare, for painting rounds otherwise than measuring.
                        const int padding = part == Part::badge ? 2 * badgePaddingPx : 0;
                        width = std::max(width, letters.horizontalAdvance(words) + 1 + padding);
                    }
                }
            }
            for (std::size_t part = 0; part < partCount; ++part) {
                widest[part] = std::min(widest[part], widestPx[part]);
            }
            measured = widest;
            measuredFont = font;
        }
        return *measured;
    }

  private:
    std::vector<FindingRow> rows;
    QString toolTip;
    mutable std::optional<Widths> measured;
    mutable QFont measuredFont;
};

/// Paints a row: each part in its column, all on the first line but the text, which may have several.
class FindingList::Delegate : public QStyledItemDelegate {
  public:
    Delegate(const Model& rowModel, QObject* parent) : QStyledItemDelegate(parent), model(rowModel) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyleOptionViewItem item = option;
        initStyleOption(&item, index);
        calmSelection(item.palette, item.widget);
        item.text.clear();
        const QStyle& style = item.widget != nullptr ? *item.widget->style() : *QApplication::style();
        style.drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);

        const FindingRow& finding = model.row(index);
        const Model::Widths& widths = model.widths(item.font);
        const QRect row = item.rect.adjusted(marginPx, rowPaddingPx / 2, -marginPx, -rowPaddingPx / 2);
        const int lineHeight = item.fontMetrics.height();
        const int counterpartWidth = widths[static_cast<std::size_t>(Part::counterpart)];
        painter->save();
        painter->setFont(item.font);
        int x = row.left();
        for (const Part part : parts) {
            int width = widths[static_cast<std::size_t>(part)];
            if (part == Part::text) {
                const int behind = counterpartWidth > 0 ? counterpartWidth + gapPx : 0;
                width = std::max(0, row.right() + 1 - behind - x);
            }
            if (width == 0) {
                continue;
            }
            paintPart(*painter, item, finding, part, QRect(x, row.top(), width, lineHeight));
            x += width + (part == Part::dot ? 0 : gapPx);
        }
        painter->restore();
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        return {1, linesOf(model.row(index)) * option.fontMetrics.height() + rowPaddingPx};
    }

  private:
    /// `place` is the first line of the part.
    static void paintPart(QPainter& painter, const QStyleOptionViewItem& item, const FindingRow& finding,
                          Part part, const QRect& place) {
        const bool isSelected = item.state.testFlag(QStyle::State_Selected);
        const QColor ground = item.palette.color(isSelected ? QPalette::Highlight : QPalette::Base);
        if (part == Part::dot) {
            if (!finding.band.empty()) {
                BandDot{finding.band}.paint(
                    painter, QPointF(place.left() + BandDot::diameter / 2, place.center().y() + 0.5));
            }
            return;
        }
        const bool standsBack = part != Part::call && part != Part::text && part != Part::badge;
        QColor ink = item.palette.color(isSelected   ? QPalette::HighlightedText
                                        : standsBack ? QPalette::PlaceholderText
                                                     : QPalette::Text);
        QRect line = place;
        if (part == Part::badge && !finding.badge.text.isEmpty()) {
            constexpr double tint = 0.18;
            constexpr double cornerPx = 4;
            const QColor color = screenColor(finding.badge.color);
            const QColor tinted = blended(color, tint, ground);
            ink = standingOut(color, {tinted}, textContrast);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setPen(Qt::NoPen);
            painter.setBrush(tinted);
            const int words = item.fontMetrics.horizontalAdvance(finding.badge.text) + 2 * badgePaddingPx + 1;
            painter.drawRoundedRect(
                QRectF(place.left(), place.top() - 1, std::min(words, place.width()), place.height() + 2),
                cornerPx, cornerPx);
            line.adjust(badgePaddingPx, 0, -badgePaddingPx, 0);
        }
        painter.setPen(ink);
        const int side = part == Part::number ? Qt::AlignRight : Qt::AlignLeft;
        for (const QString& words : wordsOf(finding, part).split(QLatin1Char('\n'))) {
            painter.drawText(line, side | Qt::AlignVCenter | Qt::TextSingleLine,
                             item.fontMetrics.elidedText(words, Qt::ElideRight, line.width()));
            line.translate(0, line.height());
        }
    }

    const Model& model;
};

FindingList::FindingList(QString rowToolTip, Height listHeight, QWidget* parent)
    : CopyableList(Qt::DisplayRole, parent),
      findingModel(new Model(std::move(rowToolTip), this)),
      height(listHeight) {
    setModel(findingModel);
    setItemDelegate(new Delegate(*findingModel, this));
    // A row is as high as its text has lines.
    setUniformItemSizes(false);
    setResizeMode(QListView::Adjust);
    if (height == Height::ofRows) {
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    }
    setMouseTracking(true);
    connect(this, &QListView::clicked, this, [this](const QModelIndex& index) {
        // With a key held, several are being chosen, to be copied.
        if (QGuiApplication::keyboardModifiers() == Qt::NoModifier && findingModel->row(index).leads) {
            emit pressed(index.row());
        }
    });
    connect(this, &QListView::entered, this, [this](const QModelIndex& index) {
        viewport()->setCursor(findingModel->row(index).leads ? Qt::PointingHandCursor : Qt::ArrowCursor);
    });
    connect(this, &QListView::viewportEntered, this, [this] { viewport()->unsetCursor(); });
}

FindingList::~FindingList() = default;

void FindingList::setFindings(std::vector<FindingRow> findings) {
    findingModel->setRows(std::move(findings));
    updateGeometry();
}

QSize FindingList::sizeHint() const {
    if (height == Height::ofPane) {
        return minimumSizeHint();
    }
    int rows = 0;
    for (int row = 0; row < findingModel->rowCount(); ++row) {
        rows += sizeHintForRow(row);
    }
    return {1, rows};
}

QSize FindingList::minimumSizeHint() const {
    if (height == Height::ofRows) {
        return sizeHint();
    }
    constexpr int fewestRows = 2;
    return {CopyableList::minimumSizeHint().width(), fewestRows * (fontMetrics().height() + rowPaddingPx)};
}

void FindingList::changeEvent(QEvent* event) {
    CopyableList::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        updateGeometry();
    }
}

/// Not with the mouse: a pane that scrolls between press and release takes the row away from under it.
void FindingList::tellCurrentRow() {
    if (currentIndex().isValid()) {
        emit currentRowMoved(visualRect(currentIndex()));
    }
}

void FindingList::focusInEvent(QFocusEvent* event) {
    CopyableList::focusInEvent(event);
    if (event->reason() != Qt::MouseFocusReason && currentIndex().isValid()) {
        if (!selectionModel()->hasSelection()) {
            // What the copying key takes is what the frame is on.
            selectionModel()->select(currentIndex(), QItemSelectionModel::Select);
        }
        tellCurrentRow();
    }
}

void FindingList::keyPressEvent(QKeyEvent* event) {
    const bool isPress = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
                         (event->key() == Qt::Key_Space && event->modifiers() == Qt::NoModifier);
    if (isPress && currentIndex().isValid()) {
        if (findingModel->row(currentIndex()).leads) {
            emit pressed(currentIndex().row());
        }
        return;
    }
    CopyableList::keyPressEvent(event);
    tellCurrentRow();
}

}  // namespace quillon
