// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Controls/Tile.h"

#include "Quillon/Views/Controls/Card.h"
#include "Quillon/Views/Controls/Labels.h"

#include <QEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace quillon {

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

void Tile::setCaption(const QString& caption) {
    word->setText(caption);
    nameFigure();
}

void Tile::setFigure(const QString& figure, Tone tone) {
    number->setText(figure);
    nameFigure();
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

void Tile::nameFigure() {
    number->setAccessibleName(word->text() + QStringLiteral(": ") + number->text());
}

void Tile::color() {
    QPalette colors = palette();
    colors.setColor(QPalette::WindowText, toneColor(figureTone, colors, colors.color(QPalette::Base)));
    number->setPalette(colors);
}

}  // namespace quillon
