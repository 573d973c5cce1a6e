#include "Quillon/Views/Controls/Tile.h"

#include "Quillon/Views/Controls/Card.h"
#include "Quillon/Views/Controls/Colors.h"
#include "Quillon/Views/Controls/Labels.h"

#include <QEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace quillon {

namespace {

QColor toneColor(Tone tone, const QPalette& palette) {
    switch (tone) {
        case Tone::warning:
            return screenColor(SystemColor::orange);
        case Tone::error:
            return screenColor(SystemColor::red);
        case Tone::plain:
            break;
    }
    return palette.color(QPalette::Text);
}

}  // namespace

Tile::Tile(const QString& caption, QWidget* parent)
    : QWidget(parent), number(figureLabel(1.6, this)), word(noteLabel(caption, this)) {
    word->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    number->setAlignment(Qt::AlignCenter);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(12, 10, 12, 10);
    column->setSpacing(2);
    column->addWidget(number);
    column->addWidget(word);
    column->addStretch(1);
}

void Tile::setFigure(const QString& figure, Tone tone) {
    number->setText(figure);
    number->setAccessibleName(word->text() + QStringLiteral(": ") + figure);
    figureTone = tone;
    color();
}

void Tile::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange) {
        color();
    }
    QWidget::changeEvent(event);
}

void Tile::paintEvent(QPaintEvent*) {
    paintCardGround(*this);
}

void Tile::color() {
    QPalette colors = palette();
    colors.setColor(QPalette::WindowText,
                    standingOut(toneColor(figureTone, colors), {colors.color(QPalette::Base)}, textContrast));
    number->setPalette(colors);
}

}  // namespace quillon
