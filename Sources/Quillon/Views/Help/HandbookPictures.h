// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QMap>
#include <QObject>
#include <QTextObjectInterface>

namespace quillon {

/// Shows the pictures of a handbook as wide as they are, or as its page where that is narrower, made smaller
/// without losing thin lines. A picture is read when it is first laid out.
class HandbookPictures : public QObject, public QTextObjectInterface {
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

  public:
    using QObject::QObject;

    /// One pixel each way for a picture that is not there.
    QSizeF intrinsicSize(QTextDocument* document, int position, const QTextFormat& format) override;
    void drawObject(QPainter* painter, const QRectF& place, QTextDocument* document, int position,
                    const QTextFormat& format) override;

  private:
    const QImage& picture(const QTextFormat& format);

    QMap<QString, QImage> pictures;  ///< By name, as they are.
    QMap<QString, QImage> scaled;    ///< As they were last drawn.
};

}  // namespace quillon
