#include "Quillon/Views/Controls/FindingList.h"

#include "Quillon/Views/Controls/BandDot.h"
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
#include <optional>
#include <utility>

namespace quillon {

namespace {

constexpr int marginPx = 8;
constexpr int gapPx = 14;
constexpr int dotRoomPx = 14;
constexpr int widestCallPx = 220;
constexpr int widestBandPx = 110;

QString shownBand(const FindingRow& row) {
    return toQString(tallyrig::text::visibleText(cutToShow(row.band)));
}

}  // namespace

/// The rows, and how wide their columns are.
class FindingList::Model : public QAbstractListModel {
  public:
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
                return QStringList({finding.number, finding.call, shownBand(finding), finding.text})
                    .join(QLatin1Char('\t'));
            case Qt::AccessibleTextRole: {
                QStringList told = {finding.number, finding.call, shownBand(finding), finding.text};
                told.removeAll(QString());
                return told.join(QStringLiteral(", "));
            }
            case Qt::ToolTipRole:
                return plainToolTip(finding.text + QLatin1Char('\n') + toolTip);
            default:
                return {};
        }
    }

    struct Widths {
        int number = 0;
        int call = 0;
        int band = 0;
    };
    /// In letters of `font`. Cost: nothing as long as rows and font stay.
    const Widths& widths(const QFont& font) const {
        if (!measured || measuredFont != font) {
            const QFontMetrics letters(font);
            // With a pixel to spare, for painting rounds otherwise than measuring.
            const auto room = [&letters](const QString& text) { return letters.horizontalAdvance(text) + 1; };
            Widths widest;
            for (const FindingRow& finding : rows) {
                widest.number = std::max(widest.number, room(finding.number));
                widest.call = std::max(widest.call, room(finding.call));
                widest.band = std::max(widest.band, room(shownBand(finding)));
            }
            widest.call = std::min(widest.call, widestCallPx);
            widest.band = std::min(widest.band, widestBandPx);
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

/// Paints a row: number, call, dot and name of the band, and the text in what is left.
class FindingList::Delegate : public QStyledItemDelegate {
  public:
    Delegate(const Model& rowModel, QObject* parent) : QStyledItemDelegate(parent), model(rowModel) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyleOptionViewItem item = option;
        initStyleOption(&item, index);
        item.text.clear();
        const QStyle& style = item.widget != nullptr ? *item.widget->style() : *QApplication::style();
        style.drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);

        const bool isSelected = item.state.testFlag(QStyle::State_Selected);
        const QColor text = item.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text);
        const QColor secondary =
            item.palette.color(isSelected ? QPalette::HighlightedText : QPalette::PlaceholderText);
        const FindingRow& finding = model.row(index);
        const Model::Widths& widths = model.widths(item.font);
        const QRect row = item.rect.adjusted(marginPx, 0, -marginPx, 0);
        int x = row.left();
        painter->save();
        painter->setFont(item.font);
        const auto draw = [&](const QString& words, int width, const QColor& color, Qt::Alignment side) {
            painter->setPen(color);
            painter->drawText(QRect(x, row.top(), width, row.height()),
                              static_cast<int>(side | Qt::AlignVCenter) | Qt::TextSingleLine,
                              item.fontMetrics.elidedText(words, Qt::ElideRight, width));
            x += width;
        };
        draw(finding.number, widths.number, secondary, Qt::AlignRight);
        x += gapPx;
        draw(finding.call, widths.call, text, Qt::AlignLeft);
        x += gapPx;
        if (!finding.band.empty()) {
            BandDot{finding.band}.paint(*painter, QPointF(x + BandDot::diameter / 2, row.center().y() + 0.5));
        }
        x += dotRoomPx;
        draw(shownBand(finding), widths.band, secondary, Qt::AlignLeft);
        x += gapPx;
        draw(finding.text, std::max(0, row.right() + 1 - x), text, Qt::AlignLeft);
        painter->restore();
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override {
        return {1, option.fontMetrics.height() + 10};
    }

  private:
    const Model& model;
};

FindingList::FindingList(QString rowToolTip, QWidget* parent)
    : CopyableList(Qt::DisplayRole, parent), findingModel(new Model(std::move(rowToolTip), this)) {
    setModel(findingModel);
    setItemDelegate(new Delegate(*findingModel, this));
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setMouseTracking(true);
    viewport()->setCursor(Qt::PointingHandCursor);
    connect(this, &QListView::clicked, this, [this](const QModelIndex& index) {
        // With a key held, several are being chosen, to be copied.
        if (QGuiApplication::keyboardModifiers() == Qt::NoModifier) {
            emit pressed(index.row());
        }
    });
}

FindingList::~FindingList() = default;

void FindingList::setFindings(std::vector<FindingRow> findings) {
    findingModel->setRows(std::move(findings));
    updateGeometry();
}

QSize FindingList::sizeHint() const {
    const int rows = findingModel->rowCount();
    return {1, rows > 0 ? rows * sizeHintForRow(0) : 0};
}

QSize FindingList::minimumSizeHint() const {
    return sizeHint();
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
    if (event->reason() != Qt::MouseFocusReason) {
        tellCurrentRow();
    }
}

void FindingList::keyPressEvent(QKeyEvent* event) {
    const bool isPress = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
                         (event->key() == Qt::Key_Space && event->modifiers() == Qt::NoModifier);
    if (isPress && currentIndex().isValid()) {
        emit pressed(currentIndex().row());
        return;
    }
    CopyableList::keyPressEvent(event);
    tellCurrentRow();
}

}  // namespace quillon
