#include "Quillon/Views/Controls/Labels.h"

#include "Quillon/Platform/Desktop/FontMeasurer.h"
#include "Quillon/Views/Controls/Hairline.h"

#include <QLocale>
#include <QPainter>
#include <QStyle>

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

class PictureWidget : public QWidget {
  public:
    PictureWidget(QIcon icon, int sizePx, QWidget* parent) : QWidget(parent), picture(std::move(icon)) {
        setFixedSize(sizePx, sizePx);
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        picture.paint(&painter, rect());
    }

  private:
    QIcon picture;
};

class HorizontalLine : public QWidget {
  public:
    explicit HorizontalLine(QWidget* parent) : QWidget(parent) { setFixedHeight(1); }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(QRectF(0, 0, width(), hairlineWidth(painter)), palette().color(QPalette::Mid));
    }
};

}  // namespace

ElidedLabel::ElidedLabel(Qt::TextElideMode elideMode, QWidget* parent) : QLabel(parent), elide(elideMode) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QSize ElidedLabel::sizeHint() const {
    return {fontMetrics().horizontalAdvance(text()) + 1, QLabel::sizeHint().height()};
}

QSize ElidedLabel::minimumSizeHint() const {
    const int readable = fontMetrics().horizontalAdvance(QStringLiteral("mmm…"));
    return {std::min(readable, sizeHint().width()), QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRect area = contentsRect();
    const int flags =
        static_cast<int>(QStyle::visualAlignment(layoutDirection(), alignment())) | Qt::TextSingleLine;
    style()->drawItemText(&painter, area, flags, palette(), isEnabled(),
                          fontMetrics().elidedText(text(), elide, area.width()), foregroundRole());
}

QLabel* headingLabel(const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setFont(fontFor(MeasuredFont::label));
    return label;
}

QLabel* noteLabel(const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setFont(smallFont());
    label->setForegroundRole(QPalette::PlaceholderText);
    label->setWordWrap(true);
    return label;
}

QWidget* horizontalLine(QWidget* parent) {
    return new HorizontalLine(parent);
}

QWidget* pictureWidget(const QIcon& picture, int sizePx, QWidget* parent) {
    return new PictureWidget(picture, sizePx, parent);
}

QString tooLongMessage(std::size_t size) {
    return QStringLiteral("Der Wert ist mit %1 Bytes zu lang, um ihn hier zu bearbeiten.")
        .arg(QLocale(QLocale::German).toString(static_cast<qulonglong>(size)));
}

QString plainToolTip(const QString& text) {
    if (text.isEmpty()) {
        return {};
    }
    const QString lines = text.toHtmlEscaped().replace(QLatin1Char('\n'), QStringLiteral("<br>"));
    return QStringLiteral("<span>") + lines + QStringLiteral("</span>");
}

}  // namespace quillon
