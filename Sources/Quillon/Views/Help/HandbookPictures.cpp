// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Help/HandbookPictures.h"

#include "Quillon/Views/Help/HandbookDocument.h"

#include <QPainter>

#include <algorithm>

namespace quillon {

QSizeF HandbookPictures::intrinsicSize(QTextDocument* document, int, const QTextFormat& format) {
    const QImage& image = picture(format);
    const double room = document->textWidth() - 2 * document->documentMargin();
    const double width = std::clamp(room, 1.0, static_cast<double>(image.width()));
    return {width, width * image.height() / image.width()};
}

void HandbookPictures::drawObject(QPainter* painter, const QRectF& place, QTextDocument*, int,
                                  const QTextFormat& format) {
    const QSize pixels = (place.size() * painter->device()->devicePixelRatioF()).toSize();
    QImage& image = scaled[format.toImageFormat().name()];
    if (image.size() != pixels) {
        image = picture(format).scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    painter->drawImage(place, image);
    // A window is seen to end where it does, in light and dark.
    painter->save();
    painter->setPen(Qt::gray);
    painter->drawRect(place.adjusted(0, 0, -1, -1));
    painter->restore();
}

const QImage& HandbookPictures::picture(const QTextFormat& format) {
    const QString name = format.toImageFormat().name();
    QImage& image = pictures[name];
    if (image.isNull() && !image.load(handbookPicture(name))) {
        image = QImage(1, 1, QImage::Format_ARGB32);
        image.fill(Qt::transparent);
    }
    return image;
}

}  // namespace quillon
