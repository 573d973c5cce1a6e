// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/ChoiceRow.h"

#include "Quillon/Views/Controls/Colors.h"
#include "Quillon/Views/Controls/TileLayout.h"

#include <QFontMetrics>
#include <QKeyEvent>
#include <QPainter>
#include <QRadioButton>

#include <algorithm>
#include <cstddef>

namespace quillon {

namespace {

/// One choice: for the keyboard and for assistive technology a radio button, to the eye a part of the row.
class Choice : public QRadioButton {
  public:
    Choice(const QString& label, QWidget* parent) : QRadioButton(label, parent) {
        setAttribute(Qt::WA_Hover);
        // The keys go to the one that holds; a click goes to any.
        connect(this, &QRadioButton::toggled, this,
                [this](bool on) { setFocusPolicy(on ? Qt::StrongFocus : Qt::ClickFocus); });
        setFocusPolicy(Qt::ClickFocus);
    }

    QSize sizeHint() const override {
        const QFontMetrics metrics(boldFont());
        return {metrics.horizontalAdvance(text()) + metrics.averageCharWidth(),
                metrics.height() + metrics.height() / 2};
    }
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }

    void paintEvent(QPaintEvent*) override {
        constexpr double cornerPx = 4;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QPalette colors = palette();
        const QColor letters = colors.color(isChecked() ? QPalette::HighlightedText : QPalette::ButtonText);
        const QColor ground = isChecked()
                                  ? standingOut(colors.color(QPalette::Highlight), {letters}, textContrast)
                                  : colors.color(underMouse() ? QPalette::Midlight : QPalette::Button);
        painter.setPen(isChecked() ? ground : colors.color(QPalette::Mid));
        painter.setBrush(ground);
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), cornerPx, cornerPx);
        if (hasFocus()) {
            painter.setPen(QPen(letters, 1.5));
            painter.setBrush(Qt::NoBrush);
            painter.drawRoundedRect(QRectF(rect()).adjusted(2.5, 2.5, -2.5, -2.5), cornerPx, cornerPx);
        }
        painter.setFont(isChecked() ? boldFont() : font());
        painter.setPen(letters);
        painter.drawText(rect(), Qt::AlignCenter, text());
    }

  private:
    QFont boldFont() const {
        QFont bold = font();
        bold.setBold(true);
        return bold;
    }
};

}  // namespace

ChoiceRow::ChoiceRow(const QStringList& labels, int current, QWidget* parent) : QWidget(parent) {
    constexpr int gapPx = 3;
    auto* const row = new TileLayout(this, TileRows::fewest);
    row->setSpacing(gapPx);
    for (const QString& label : labels) {
        auto* const choice = new Choice(label, this);
        const int index = static_cast<int>(choices.size());
        connect(choice, &QRadioButton::clicked, this, [this, index] { emit chosen(index); });
        choice->installEventFilter(this);
        row->addWidget(choice);
        choices.push_back(choice);
    }
    setCurrent(current);
}

/// Radio buttons by themselves go by where they lie, and find no way from one row to the next.
bool ChoiceRow::eventFilter(QObject* watched, QEvent* event) {
    const auto at = std::ranges::find(choices, watched);
    if (event->type() != QEvent::KeyPress || at == choices.end()) {
        return QWidget::eventFilter(watched, event);
    }
    auto next = at;
    switch (static_cast<const QKeyEvent*>(event)->key()) {
        case Qt::Key_Left:
        case Qt::Key_Up:
            next = at == choices.begin() ? at : at - 1;
            break;
        case Qt::Key_Right:
        case Qt::Key_Down:
            next = at + 1 == choices.end() ? at : at + 1;
            break;
        case Qt::Key_Home:
            next = choices.begin();
            break;
        case Qt::Key_End:
            next = choices.end() - 1;
            break;
        default:
            return QWidget::eventFilter(watched, event);
    }
    if (next != at) {
        (*next)->setFocus(Qt::OtherFocusReason);
        (*next)->click();
    }
    return true;
}

void ChoiceRow::setCurrent(int index) {
    choices[static_cast<std::size_t>(index)]->setChecked(true);
}

}  // namespace quillon
