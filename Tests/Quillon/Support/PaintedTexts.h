// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Views/Controls/Colors.h"

#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QWidget>

#include <algorithm>
#include <map>
#include <vector>

namespace quillon::testing {

/// A text as it was painted, in the coordinates of the picture.
struct PaintedText {
    QString text;
    QRect place;
    QColor ink;
};

/// A device that paints nothing and notes every text with the colour that it has: what pictures cannot tell,
/// for in them small letters are all seam and no core.
class TextNotes : public QPaintDevice {
  public:
    explicit TextNotes(QSize pictureSize) : size(pictureSize) {}

    QPaintEngine* paintEngine() const override { return &engine; }
    const std::vector<PaintedText>& texts() const { return engine.texts; }

  protected:
    int metric(PaintDeviceMetric metric) const override {
        switch (metric) {
            case PdmWidth:
                return size.width();
            case PdmHeight:
                return size.height();
            case PdmNumColors:
                return 0;
            case PdmDepth:
                return 32;
            case PdmDevicePixelRatio:
                return 1;
            case PdmDevicePixelRatioScaled:
                return static_cast<int>(devicePixelRatioFScale());
            default:
                return 96;
        }
    }

  private:
    struct Engine : QPaintEngine {
        Engine() : QPaintEngine(AllFeatures) {}
        bool begin(QPaintDevice*) override { return true; }
        bool end() override { return true; }
        Type type() const override { return User; }
        void updateState(const QPaintEngineState&) override {}
        void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
        void drawImage(const QRectF&, const QImage&, const QRectF&, Qt::ImageConversionFlags) override {}
        void drawPath(const QPainterPath&) override {}
        void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
        void drawPolygon(const QPoint*, int, PolygonDrawMode) override {}
        void drawTextItem(const QPointF& position, const QTextItem& item) override {
            const QTransform toPicture = painter()->deviceTransform();
            QRectF area(position.x(), position.y() - item.ascent(), item.width(),
                        item.ascent() + item.descent());
            if (painter()->hasClipping()) {
                area &= painter()->clipBoundingRect();
            }
            QColor ink = painter()->pen().color();
            ink.setAlphaF(static_cast<float>(ink.alphaF() * painter()->opacity()));
            QRect place = toPicture.mapRect(area).toRect();
            if (!systemClip().isEmpty()) {
                place &= systemClip().boundingRect();
            }
            texts.push_back({item.text(), place, ink});
        }
        std::vector<PaintedText> texts;
    };

    QSize size;
    mutable Engine engine;
};

/// The colour that most of the picture has there; invalid outside of it.
inline QColor groundIn(const QImage& picture, const QRect& area) {
    std::map<QRgb, int> counts;
    const QRect inside = area & picture.rect();
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x) {
            ++counts[picture.pixel(x, y)];
        }
    }
    const auto most = std::ranges::max_element(counts, {}, [](const auto& entry) { return entry.second; });
    return most == counts.end() ? QColor() : QColor(most->first);
}

/// The contrast of a text with what it stands on in `picture`, which shows the same as its notes.
inline double contrastOf(const PaintedText& painted, const QImage& picture) {
    const QColor ground = groundIn(picture, painted.place);
    return contrast(blended(painted.ink, painted.ink.alphaF(), ground), ground);
}

}  // namespace quillon::testing
